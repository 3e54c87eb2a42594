#include "game/word_typing.hpp"

#include "game/game.hpp"

#include <algorithm>
#include <numeric>
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
    std::optional<std::vector<int>> find() { return goOn(anywhere()) ? std::optional(path_) : std::nullopt; }

    /// The path found behind this one, after the last one the first; nothing without another.
    std::optional<std::vector<int>> findAfter(const std::vector<int>& path)
    {
        after_ = &path;
        if (goOn(anywhere()))
            return path_;
        after_ = nullptr;
        path_.clear();
        steps_ = 0;
        return goOn(anywhere()) && path_ != path ? std::optional(path_) : std::nullopt;
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
    static std::vector<int> anywhere()
    {
        std::vector<int> tiles(Board::tileCount);
        std::iota(tiles.begin(), tiles.end(), 1);
        return tiles;
    }

    bool goOn(const std::vector<int>& from)
    {
        if (path_.size() == word_.size()) {
            const bool wanted = after_ == nullptr;
            if (!wanted && path_ == *after_)
                after_ = nullptr; // the next one is
            return wanted;
        }
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
    const std::vector<int>* after_ = nullptr; ///< no path counts before this one was found
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

std::optional<std::vector<int>> otherPath(const Board& board, const Selection& path)
{
    return path.isEmpty() ? std::nullopt : PathFinder(board, path.word()).findAfter(path.tiles());
}

void pickPath(Selection& selection, const std::vector<int>& path)
{
    const std::vector<int>& before = selection.tiles();
    if (before.size() >= path.size() || !std::equal(before.begin(), before.end(), path.begin()))
        selection.clear();
    for (std::size_t i = before.size(); i < path.size(); ++i)
        selection.tileClicked(path[i], MouseButton::Left);
}

bool extendWord(Game& game, char letter)
{
    const auto path = typedPath(game.board, game.selection, letter);
    if (!path) {
        game.ports.status.show(game.selection.word() + letter + " cannot be spelled on the board");
        return false;
    }
    pickPath(game.selection, *path);
    return true;
}

} // namespace lexigrove
