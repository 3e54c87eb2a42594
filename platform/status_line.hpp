#pragma once

#include <string>

namespace lexigrove
{

/// The main window's status line: the label `Label1` and the icon `Warn` beside it. A front end that must report every
/// text, even those overwritten within one action, overrides `written`.
class StatusLine
{
public:
    virtual ~StatusLine() = default;

    /// ShowStatus: puts the message into `Label1` and makes the icon visible: the player should note it.
    void show(const std::string& message)
    {
        Warn = true;
        write(message);
    }

    /// Sets the caption of `Label1` and leaves the icon alone.
    void write(const std::string& caption)
    {
        Label1 = caption;
        current = Current::Caption;
        written(caption);
    }

    /// Tells what has happened without the player, or why nothing has: stands in place of the caption for a while.
    void tell(const std::string& news)
    {
        News = news;
        ++told;
        current = Current::News;
    }

    /// The player goes on: what was said before the action is over.
    void actionBegins()
    {
        if (current == Current::News || Warn)
            forget();
        News.clear();
    }

    /// What was said is over.
    void forget() { current = Current::Nothing; }

    /// What a window shows; the texts themselves stay.
    enum class Current { Caption, News, Nothing };

    std::string Label1;
    std::string News;
    unsigned told = 0; ///< number of news so far
    Current current = Current::Caption;
    bool Warn = false;

protected:
    virtual void written(const std::string& /*caption*/) {}
};

} // namespace lexigrove
