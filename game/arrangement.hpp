#pragma once

namespace lexigrove
{

/// How the tiles stand: eight columns of eight, or columns of seven and eight in turn, shifted like a honeycomb.
enum class Arrangement { Square, Staggered };

} // namespace lexigrove
