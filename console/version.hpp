#pragma once

namespace lexigrove
{

/// The game's version, as the build gives it ("1.0.0").
const char* gameVersion();

} // namespace lexigrove
