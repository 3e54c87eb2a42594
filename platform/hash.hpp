#pragma once

#include <cstdint>
#include <string_view>

namespace lexigrove
{

/// A 64-bit FNV-1a hash, which can go on from that of the text before: detects changes, but is no defence against
/// forgery. The same on every machine.
constexpr std::uint64_t hashOf(std::string_view text, std::uint64_t before = 14'695'981'039'346'656'037U)
{
    for (const char c : text)
        before = (before ^ static_cast<unsigned char>(c)) * 1'099'511'628'211U;
    return before;
}

} // namespace lexigrove
