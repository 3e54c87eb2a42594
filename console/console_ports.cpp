#include "console/console_ports.hpp"

namespace lexigrove
{

void ConsoleDialogs::message(const std::string& text)
{
    channel_.writeEvent("message", text);
}

bool ConsoleDialogs::confirm(const std::string& text)
{
    for (;;) {
        channel_.writeEvent("confirm", text);
        const std::string reply = channel_.readChoice();
        if (reply == "yes" || reply == "no")
            return reply == "yes";
    }
}

std::string ConsoleDialogs::input(const std::string& title, const std::string& prompt,
                                  const std::string& /*defaultAnswer*/)
{
    channel_.writeEvent("input", title + ": " + prompt);
    return channel_.readReply();
}

std::string ConsoleDialogs::openFile(const OpenFileRequest& request)
{
    channel_.writeEvent("open", request.title);
    return channel_.readReply();
}

void ConsoleSound::send(const std::string& command)
{
    const std::string before = "play " + folder_;
    channel_.writeEvent("sound", command.starts_with(before) ? command.substr(before.size()) : command);
}

} // namespace lexigrove
