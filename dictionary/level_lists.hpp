#pragma once

#include "dictionary/word_list.hpp"

#include <array>
#include <map>
#include <string>

namespace lexigrove
{

/// The word lists beside that of the game: looking back asks them, and an opponent who does not know every word. Each
/// is read when it is first asked for and then kept.
class LevelLists
{
public:
    /// `programFolder` ends with its separator.
    explicit LevelLists(std::string programFolder) : folder_(std::move(programFolder)) {}

    /// The list of level 1 to 3. A file in the maintained format gives the words that it codes; one that cannot be read
    /// gives an empty list.
    const WordList& level(int level);

    /// The words of a game's own dictionary: of its level, or of the user dictionary (level 0) as it is today.
    const WordList& own(int ownLevel, const std::string& userDictionary);

private:
    const WordList& read(const std::string& name);

    std::string folder_;
    std::map<std::string, WordList> lists_; ///< by file name
};

} // namespace lexigrove
