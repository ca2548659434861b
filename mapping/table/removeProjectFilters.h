#pragma once

namespace VKTab {
class Content;
}

/// Takes a project's own line filters off its table: they must not hide lines from the editor.
void removeProjectFilters(const VKTab::Content &table);
