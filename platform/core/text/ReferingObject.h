#pragma once

#include <core/VelkCoreGlobal.h>

#include <memory>

/// Base of an object that hands out callbacks which may outlive it. A callback keeps reference()
/// and does nothing once that has expired. GUI thread.
class VELKCORE_EXPORT ReferingObject
{
public:
    ReferingObject();
    ReferingObject(const ReferingObject &) = delete;
    ReferingObject &operator=(const ReferingObject &) = delete;
    virtual ~ReferingObject();

    [[nodiscard]] std::weak_ptr<const void> reference() const { return m_alive; }

private:
    std::shared_ptr<const void> m_alive;
};
