#pragma once

#include <QObject>

class EditorArea;
class MappingDocument;
class NeighbourDock;
class NeighbourWork;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Places where neighbouring lines do not fit each other: shown in the table, and mended as a whole
/// in one step.
class NeighbourCommands : public QObject
{
    Q_OBJECT

public:
    /// All must live as long; the list belongs to \a window.
    NeighbourCommands(MappingDocument *document, EditorArea *editor, QWidget *window);
    ~NeighbourCommands() override;

    [[nodiscard]] NeighbourWork *work() const { return m_work; }
    [[nodiscard]] NeighbourDock *dock() const { return m_dock; }

    /// Shows the list and gives it the keys.
    void showList();
    /// Goes to the first line of the current finding.
    void goToCurrent();
    /// Mends the current finding.
    void mend();

Q_SIGNALS:
    void noted(const QString &text);
    /// A step was done that can be taken back.
    void done(const QString &text);

private:
    MappingDocument *const m_document;
    EditorArea *const m_editor;
    NeighbourWork *const m_work;
    NeighbourDock *const m_dock;
};
