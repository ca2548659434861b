#pragma once

#include "Nodes.h"
#include "Operand.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace VKTab {

/// Where an evaluation gets the values of variables from.
class VELKGEOMCORE_EXPORT OperandSource
{
public:
    virtual ~OperandSource();

    /// Value of the variable in that slot of the program; its text may be kept in memory, which
    /// lives until the evaluation ends.
    [[nodiscard]] virtual Operand operand(int slot, std::pmr::memory_resource &memory) const = 0;
};

/// What a formula gives. No value is an empty text.
struct ExpressionValue
{
    /// UTF-8. Numbers that were computed have up to 15 significant digits and a decimal point.
    std::string text;
    /// The value is a number, or a stored text that reads as one.
    bool numeric = false;

    friend bool operator==(const ExpressionValue &, const ExpressionValue &) = default;
};

/// A parsed statement in the flat form that is evaluated: instructions for a small stack,
/// constants, and a slot for each variable. Immutable; any thread. Evaluation needs no memory from
/// the heap unless texts are built.
class VELKGEOMCORE_EXPORT Program
{
public:
    /// A variable that the statement reads; the same name with and without prefix has two slots.
    struct Variable
    {
        QString name;
        /// Written with the prefix "SOURCE@".
        bool prefixed = false;
        friend bool operator==(const Variable &, const Variable &) = default;
    };

    explicit Program(const NodeBase &statement);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    [[nodiscard]] const std::vector<Variable> &variables() const { return m_variables; }
    /// Names of the variables read, in the order of their first appearance, each once.
    [[nodiscard]] QStringList variableNames() const;
    /// The assigned variable; empty unless the statement is an assignment.
    [[nodiscard]] const QString &target() const { return m_target; }
    [[nodiscard]] bool isAssignment() const { return m_type == AssignmentType; }
    /// A comparison or several of them joined: something that holds or does not.
    [[nodiscard]] bool isLogical() const { return m_type == LogicalType; }

    /// Whether the comparison holds; false for a statement that is none.
    [[nodiscard]] bool holds(const OperandSource &source) const;
    /// The value of the statement, of an assignment that of its right side. Reuses the room of
    /// result.text. A computed text of over a million characters is no value; the log window is
    /// told of the first one.
    void evaluate(const OperandSource &source, ExpressionValue &result) const;

private:
    friend class ProgramWriter;

    enum class Code : quint8 {
        Constant,
        Variable,
        Negate,
        Positive,
        Add,
        Subtract,
        Multiply,
        Divide,
        Power,
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        Not,
        Call,
        Jump,
        /// These two leave the value when they jump and take it when they do not.
        JumpIfFalse,
        JumpIfTrue,
        /// Takes the value in either case.
        TakeAndJumpIfFalse
    };

    struct Instruction
    {
        Code code;
        /// Arguments of a call.
        int count = 0;
        /// Slot, index of a constant, or target of a jump.
        int argument = 0;
        const ExpressionFunction *function = nullptr;
    };

    class Run;

    void tellRefused() const;

    std::vector<Instruction> m_code;
    std::vector<Operand> m_constants;
    /// Texts of the constants, each of its own so that views into them stay valid.
    std::vector<std::unique_ptr<const std::string>> m_texts;
    std::vector<Variable> m_variables;
    QString m_target;
    int m_type = InvalidType;
    int m_stackSize = 0;
    mutable std::atomic_flag m_told;
};

} // namespace VKTab
