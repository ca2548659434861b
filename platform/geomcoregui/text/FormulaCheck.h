#pragma once

#include <geomcore/expression/MapVarValueC.h>

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
QT_END_NAMESPACE

class VarsetParserC;

/// Parses the statement in an editor a moment after it was changed, underlines the first error and
/// says what it is in a strip at the lower edge, or at the upper one if the cursor is there. An
/// empty text is no error. The editor owns it.
class FormulaCheck : public QObject
{
    Q_OBJECT

public:
    explicit FormulaCheck(QPlainTextEdit *edit);
    ~FormulaCheck() override;

    /// With a variable name only an assignment to it is right.
    void setStatement(const QHash<QString, MapVarValueC> &source,
                      const QHash<QString, MapVarValueC> &target, const QString &variableName);
    /// Takes away what it shows; nothing but deleting it may follow.
    void release();
    /// Null before setStatement().
    [[nodiscard]] const VarsetParserC *parser() const { return m_parser.get(); }
    /// Error at that place of the text; empty if there is none.
    [[nodiscard]] QString errorAt(qsizetype position) const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void onTextChanged();
    void check();
    void mark(qsizetype position);
    void placeStrip();

    QPlainTextEdit *const m_edit;
    QLabel *const m_strip;
    QTimer m_pause;
    std::unique_ptr<VarsetParserC> m_parser;
    QString m_variableName;
    QString m_text;
    QString m_error;
    qsizetype m_start = 0;
    qsizetype m_end = 0;
};
