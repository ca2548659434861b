#pragma once

class QTextStream;

namespace velkmap {

struct ReviewReport;

/// Tells a review as the JSON of docs/formats.md, for programs.
void writeReviewJson(const ReviewReport &report, QTextStream &out);

} // namespace velkmap
