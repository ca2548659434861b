#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <core/text/PRefPtr.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>
#include <geomcore/index/IndexTreeNodeC.h>

#include <QDialog>

#include <new>

class dlgSearchSelectPrivate;

/// Dialog in which a project is found by search or in the tree of the catalogs.
class VELKLINKDBGUI_EXPORT dlgSearchSelect : public QDialog
{
    Q_OBJECT

public:
    /// The two bools are those of the tree: icons with ERP marks, and all items instead of those
    /// that can be selected.
    dlgSearchSelect(QWidget *parent, bool erpIcons, bool unfiltered);
    ~dlgSearchSelect() override;

    /// Searches in one catalog only.
    void setSearchCatalog(const PRefPtr<IndexTreeNodeC> &node);
    void setCurrentCatalog(const PRefPtr<IndexTreeNodeC> &node);
    /// Searches for words in everything that a project says.
    void setSearchKeyWord(const QString &keyWord);
    /// Selects a catalog in the tree once that is shown.
    void preselectCatalog(const QString &catalogName);
    void clearSearchResults();
    /// Without it, as at first, the dialog stays open and can announce one item after another.
    void setCloseAfterSelect(bool close);
    /// The last item chosen, also one that cannot be opened; null before that.
    [[nodiscard]] PRefPtr<IndexTreeDisplayItemI> getSelectedItem() const;

    static QString trUtf8(const char *text, const char *disambiguation = nullptr, int n = -1)
    {
        return tr(text, disambiguation, n);
    }
    static void *operator new(size_t size);
    static void operator delete(void *object);

Q_SIGNALS:
    void itemSelected(PRefPtr<IndexTreeDisplayItemI> item);

public Q_SLOTS:
    void onDoubleClick();
    void onSelectionChanged();

private:
    dlgSearchSelectPrivate *const d;
};
