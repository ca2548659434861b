#pragma once

#include <QFlags>

/// How a message is shown. The numbers are fixed.
enum class PMsgDlgMode {
    Information = 0, ///< Ok
    OkCancel = 1,    ///< question with Ok and Cancel
    YesNoCancel = 3, ///< question with Yes, No and Cancel
    Error = 0x10,    ///< Ok
    Warning = 0x30   ///< Ok
};
/// The bits of a mode that ask something.
inline constexpr int PMsgDlgButtonBits = 0x0f;
Q_DECLARE_FLAGS(PMsgDlgModes, PMsgDlgMode)
Q_DECLARE_OPERATORS_FOR_FLAGS(PMsgDlgModes)

/// What the user answered; whatever is neither Ok, Cancel nor Yes counts as No. The numbers are
/// fixed.
enum class PMsgReply { Ok = 1, Cancel = 2, Yes = 6, No = 7 };
