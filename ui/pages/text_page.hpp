#pragma once

#include "ui/pages/browser.hpp"

namespace lexigrove
{

/// A local page in the toolkit's own view, where the web engine is not installed.
[[nodiscard]] std::unique_ptr<BrowserPage> newTextPage();

} // namespace lexigrove
