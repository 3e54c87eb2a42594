#include "game/word_typing.hpp"

#include "game/game.hpp"

#include <algorithm>
#include <string>

namespace lexigrove
{

namespace
{

/// Searches the board letter by letter.
class PathFinder
{
public:
    PathFinder(const Board& board, std::string word) : board_(board), word_(std::move(word)) {}

    /// The first path found, trying tiles in order of preference.
    std::optional<std::vector<int>> find()
    {
        std::vector<int> starts;
        for (int tile = 1; tile <= Board::tileCount; ++tile)
            starts.push_back(tile);
        if (!goOn(starts))
            return std::nullopt;
        return path_;
    }

    /// Those of these tiles that could come next on `path`, preferred ones first.
    std::vector<int> candidates(const std::vector<int>& tiles, const std::vector<int>& path, char letter) const
    {
        std::vector<int> fitting;
        for (const int tile : tiles) {
            const bool shows = board_.isVisible(tile) && board_.letter(tile) == std::string(1, letter);
            if (shows && std::find(path.begin(), path.end(), tile) == path.end())
                fitting.push_back(tile);
        }
        std::stable_sort(fitting.begin(), fitting.end(),
                         [this](int a, int b) { return board_.maskcolor(a) > board_.maskcolor(b); });
        return fitting;
    }

private:
    bool goOn(const std::vector<int>& from)
    {
        if (path_.size() == word_.size())
            return true;
        if (++steps_ > maxSteps)
            return false;
        for (const int tile : candidates(from, path_, word_[path_.size()])) {
            path_.push_back(tile);
            const NeighbourList next = board_.neighbours(tile);
            if (goOn({next.begin(), next.end()}))
                return true;
            path_.pop_back();
        }
        return false;
    }

    /// Only a board full of one letter gets anywhere near this.
    static constexpr int maxSteps = 50'000;

    const Board& board_;
    const std::string word_;
    std::vector<int> path_;
    int steps_ = 0;
};

} // namespace

std::optional<std::vector<int>> typedPath(const Board& board, const Selection& path, char letter)
{
    std::vector<int> tiles = path.tiles();
    PathFinder finder(board, path.word() + letter);
    if (!tiles.empty()) {
        const NeighbourList next = board.neighbours(tiles.back());
        const std::vector<int> fitting = finder.candidates({next.begin(), next.end()}, tiles, letter);
        if (!fitting.empty()) {
            tiles.push_back(fitting.front());
            return tiles;
        }
    }
    return finder.find();
}

bool extendWord(Game& game, char letter)
{
    const auto path = typedPath(game.board, game.selection, letter);
    if (!path) {
        game.ports.status.show(game.selection.word() + letter + " cannot be spelled on the board");
        return false;
    }
    const std::vector<int>& before = game.selection.tiles();
    if (before.size() >= path->size() || !std::equal(before.begin(), before.end(), path->begin()))
        game.selection.clear();
    const std::size_t kept = before.size();
    for (std::size_t i = kept; i < path->size(); ++i)
        game.selection.tileClicked((*path)[i], MouseButton::Left);
    return true;
}

} // namespace lexigrove
