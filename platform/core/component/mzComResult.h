#pragma once

/// What operations of the component model give back.
enum mzComResult : int {
    mzComSuccess = 0,
    mzComUnknownMember,      ///< no member of that name and kind
    mzComWrongArgumentCount, ///< the member takes another number of arguments
    mzComTypeCast,           ///< an argument is of the wrong type
    mzComWrongThread,        ///< called on another thread than the object's own
    mzComFailed,             ///< the call itself went wrong
    mzComNoInterface,        ///< the object does not have the interface
    mzComUnknownComponent,   ///< no class with that component id
    mzComNotCreatable,       ///< the class has no creator, or its creator made nothing
};
