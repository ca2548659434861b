#pragma once

#include <release/chain/carryDecisions.h>

#include <QObject>

#include <optional>

class CarriedWork;
class EditorArea;
class MappingDocument;

QT_BEGIN_NAMESPACE
class QSettings;
class QWidget;
QT_END_NAMESPACE

/// Takes over what was confirmed for the same old release when it led to an earlier new one, in one
/// step, and says in the tables which lines have it from there. GUI thread.
class CarryCommands : public QObject
{
    Q_OBJECT

public:
    /// All must live as long; dialogs belong to \a window, \a store knows where the catalogs of
    /// mapping files lie.
    CarryCommands(MappingDocument *document, EditorArea *editor, QSettings *store, QWidget *window);

    /// Asks for the former mapping file, and where the catalogs lie to which it leads if that is
    /// not known.
    void carryByDialog();
    /// \a formerRoot holds the catalogs to which the former mapping leads. False if nothing was
    /// taken over.
    bool carry(const QString &formerFile, const QString &formerRoot);

    [[nodiscard]] CarriedWork *work() const { return m_work; }
    /// Says from where a line has what it has; empty if nothing was taken over.
    [[nodiscard]] QString remark(const PrjMappingC &mapping, int line) const;

Q_SIGNALS:
    /// One sentence on what was not done.
    void noted(const QString &text);
    /// One sentence on what was done, in one step.
    void done(const QString &text);

private:
    [[nodiscard]] std::optional<ReleaseMappingC> read(const QString &file) const;
    [[nodiscard]] std::optional<ReleaseMappingC> follow(const ReleaseMappingC &former,
                                                        const QString &formerRoot) const;
    [[nodiscard]] QString rootOf(const QString &file, const ReleaseMappingC &former) const;
    bool carry(const QString &file, const ReleaseMappingC &former, const QString &formerRoot);

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    QSettings *const m_store;
    QWidget *const m_window;
    CarriedWork *const m_work;
};
