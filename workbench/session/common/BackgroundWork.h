#pragma once

#include <QString>

#include <functional>

/// Work on files that may take long: done on another thread, while the thread that waits for it
/// repaints and shows a progress, as soon as it takes longer than a moment.
namespace BackgroundWork {

/// Returns when the work is done. Input by the user waits meanwhile, timers do not. \a work must
/// touch nothing that others may touch on this thread.
void run(const QString &text, const std::function<void()> &work);

/// A turn of the event loop between two pieces of work that only this thread can do: what is due is
/// laid out and painted. Input by the user waits meanwhile, timers do not.
void letShow();

} // namespace BackgroundWork
