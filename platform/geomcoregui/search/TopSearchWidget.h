#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <core/text/PRefPtr.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>
#include <geomcore/search/RemoteSearchRequestDataC.h>

#include <QStringList>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLineEdit;
class QToolButton;
class QVBoxLayout;
QT_END_NAMESPACE

class ConditionRow;

/// The upper part of a search: words, conditions on variables, and where to look. GUI thread.
class VELKGEOMCOREGUI_EXPORT TopSearchWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows the fields of the searches that are named: "KeySearch" and
    /// IndexTreeVarSearchC::searchName().
    explicit TopSearchWidget(const QStringList &searchNames, QWidget *parent = nullptr);
    ~TopSearchWidget() override;

    /// What the fields say now, as a request of the caller's own; never null. Conditions that are
    /// not complete are left out. The words are those of the full text condition if the request
    /// that was set has one, else those of the key word search.
    [[nodiscard]] PRefPtr<RemoteSearchRequestDataC> getRequestData() const;
    /// Shows a request in the fields and keeps what they cannot show; null clears them. Searches.
    void setRequestData(const PRefPtr<RemoteSearchRequestDataC> &request);

    [[nodiscard]] QString words() const;
    void setRecentWords(const QStringList &words);
    void focusWords();

public Q_SLOTS:
    /// Searches below the item (of a project, its directory); the user may change that. Does
    /// nothing if the request's nodes are fixed.
    void onIndexNodeSelected(const PRefPtr<IndexTreeDisplayItemI> &item);

Q_SIGNALS:
    void requestChanged();
    /// The request is to be searched for at once.
    void requestConfirmed();
    /// Down was pressed in the field of words.
    void resultsWanted();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    ConditionRow *addRow();
    void showScope();
    void showConditions(const RemoteSearchRequestDataC &request);
    void writeWords(RemoteSearchRequestDataC &request) const;
    void writeConditions(RemoteSearchRequestDataC &request) const;

    const bool m_hasConditions;
    PRefPtr<RemoteSearchRequestDataC> m_request;
    QLineEdit *const m_words;
    QToolButton *const m_add;
    QVBoxLayout *m_rowLayout;
    QList<ConditionRow *> m_rows;
    QCheckBox *const m_scope;
};
