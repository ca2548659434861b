#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <core/text/PRefPtr.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>

#include <QDialog>

#include <new>

class dlgSelectPrivate;

/// Dialog in which one project is picked from the catalog index. It keeps no chosen item: the
/// signal tells it.
class VELKLINKDBGUI_EXPORT dlgSelect : public QDialog
{
    Q_OBJECT

public:
    explicit dlgSelect(QWidget *parent);
    ~dlgSelect() override;

    /// Selects a catalog of that name; a name that the tree does not know is dropped.
    void preselectCatalog(const QString &catalogName);
    /// Whether the user wants target projects overwritten that are mapped already.
    [[nodiscard]] bool overrideAlreadyMappedProjects() const;

    static QString trUtf8(const char *text, const char *disambiguation = nullptr, int n = -1)
    {
        return tr(text, disambiguation, n);
    }
    static void *operator new(size_t size);
    static void operator delete(void *object);

Q_SIGNALS:
    void itemSelected(PRefPtr<IndexTreeDisplayItemI> item);

public Q_SLOTS:
    void onSelectionChanged();
    void onDoubleClick();

private:
    dlgSelectPrivate *const d;
};
