#pragma once

namespace brenix {

/// The number of characters above which a page is shown without colours: `Settings`/`LargeFile`,
/// 20000 unless the user has set it. Read at start, and again when Options changes it.
int LargeFile();
void SetLargeFile(int characters);

} // namespace brenix
