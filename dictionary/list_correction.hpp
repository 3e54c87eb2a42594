#pragma once

#include "dictionary/word_list.hpp"

#include <string>

namespace lexigrove
{

/// What is wrong with the first line of a player's own list that a game cannot use as it stands, in one sentence; empty
/// if every line is a word in capital letters that comes after the word before it. `name` is the list's path.
[[nodiscard]] std::string firstFault(const WordList& list, const std::string& name);

/// The name of the corrected copy, beside the list: "garden-corrected.txt" for "garden.txt".
[[nodiscard]] std::string correctedName(const std::string& name);

/// Writes a copy of a list in capital letters, in order, each word once, without the lines that are no words of the
/// letters A to Z. A list in the maintained format is decoded. Throws FileError if there is another file in the copy's
/// place, or no word is left; nothing is written then.
void writeCorrected(const std::string& path, const std::string& copy);

} // namespace lexigrove
