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
        News.clear();
        written(caption);
    }

    /// Tells what has happened without the player: stands in place of the caption until the next one is written.
    void tell(const std::string& news) { News = news; }

    std::string Label1;
    std::string News;
    bool Warn = false;

protected:
    virtual void written(const std::string& /*caption*/) {}
};

} // namespace lexigrove
