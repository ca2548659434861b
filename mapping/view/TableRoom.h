#pragma once

#include <QObject>

#include <climits>

QT_BEGIN_NAMESPACE
class QSplitter;
QT_END_NAMESPACE

/// Leaves the tables some lines when the editor gets lower: what stands above them in the splitter
/// gives way as far as it can, and gets that back when there is room again. Sizes that the user
/// chooses stay.
class TableRoom : public QObject
{
    Q_OBJECT
public:
    /// \a splitter has two parts, the tables below; it is the parent.
    explicit TableRoom(QSplitter *splitter);

    /// Null for other splitters.
    [[nodiscard]] static TableRoom *of(const QSplitter &splitter);

    /// What the part above has given; kept with the sizes of the splitter, or it would never come
    /// back after a restart.
    [[nodiscard]] int taken() const { return m_taken; }
    /// The sizes are others now.
    void setTaken(int pixels);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void divide();

    QSplitter *const m_splitter;
    int m_taken = 0;
    int m_former = 0;       ///< height of the part above before the splitter got another one
    int m_enough = INT_MAX; ///< height of the tables as the user chose it last
};
