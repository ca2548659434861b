#pragma once

/// What a target widget tells the project widget about its target.
enum ProjectTargetNotificationType : int {
    TargetModified = 0,     ///< a line or a variable mapping changed
    TargetInserted = 1,     ///< the target was inserted into the mapping already
    TargetRemoved = 2,      ///< the target is to be removed
    TargetLinesChanged = 3, ///< conditions changed, so lines can fall into other targets
    TargetMovedUp = 4,      ///< the two targets were exchanged in the mapping already
    TargetMovedDown = 5,    ///< as TargetMovedUp
};
