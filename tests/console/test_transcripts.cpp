#include "console/console.hpp"
#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <streambuf>
#include <vector>

namespace lexigrove
{
namespace
{

namespace fs = std::filesystem;

const fs::path transcriptFolder = TRANSCRIPT_FOLDER;

/// Plays a transcript in its own program folder, initially a copy of transcripts/folder. A transcript reads
/// like a terminal; its lines are
///
///     # TEXT            a comment
///     > TEXT            a line that the console reads
///     @run [SECONDS]    starts the console at this time of day, by default 12:34
///     @end              ends the console's input, as @run and @fresh do
///     @fresh            restores the folder to its beginning
///     @file NAME        writes a file: the lines after "| " that follow, each ended by CR LF
///     @bytes NAME       writes a file: the same, without line ends
///     @folder NAME      makes a folder
///     @remove NAME      removes a file or a folder
///     @show NAME        shows a file in the lines after "| " that follow
///     @list             shows the names in the folder in the same way
///
/// and all others are the console's. `\xHH` is a byte, $FOLDER/ the program folder, $DATE the date of the day, $VERSION
/// the program's own.
class Player : private std::streambuf
{
public:
    explicit Player(const std::string& transcript)
    {
        std::istringstream text(transcript);
        for (std::string line; std::getline(text, line);)
            lines_.push_back(line);
        makeFresh();
    }

    /// The transcript as it should read: its comments, directives and input, with the console's lines.
    std::string play()
    {
        while (goToInput(), next_ < lines_.size()) {
            const std::string line = lines_[next_++];
            if (line.starts_with("> "))
                continue; // the console has ended
            out_ << line << '\n';
            if (line == "@fresh")
                makeFresh();
            else if (line.starts_with("@run"))
                run(line == "@run" ? 45240 : std::stod(line.substr(4)));
        }
        return encoded(out_.str());
    }

private:
    void run(double timeOfDay)
    {
        setg(nullptr, nullptr, nullptr);
        std::istream input(this);
        Console(folder_.path(), timeOfDay, input, out_).run();
    }

    /// The console's next line, written out where it is read.
    int_type underflow() override
    {
        goToInput();
        if (next_ == lines_.size() || !lines_[next_].starts_with("> "))
            return traits_type::eof();
        out_ << lines_[next_] << '\n';
        input_ = decoded(lines_[next_++].substr(2)) + "\n";
        setg(input_.data(), input_.data(), input_.data() + input_.size());
        return traits_type::to_int_type(input_[0]);
    }

    /// Goes on to the next line that is input, or to one that ends the input, with the comments before it.
    void goToInput()
    {
        for (; next_ < lines_.size(); ++next_) {
            const std::string& line = lines_[next_];
            std::size_t subject = next_;
            while (subject + 1 < lines_.size() && lines_[subject].starts_with('#'))
                ++subject;
            if (line.starts_with("> ") || endsInput(lines_[subject]))
                return;
            if (line.starts_with('#'))
                out_ << line << '\n';
            else if (line.starts_with('@'))
                carryOut(line);
        }
    }

    static bool endsInput(const std::string& line)
    {
        return line.starts_with("@run") || line == "@fresh" || line == "@end";
    }

    void carryOut(const std::string& line)
    {
        const std::string verb = line.substr(0, line.find(' '));
        const std::string name = line.substr(std::min(line.size(), verb.size() + 1));
        out_ << line << '\n';
        if (verb == "@folder")
            fs::create_directories(folder_.file(name));
        else if (verb == "@remove")
            fs::remove_all(folder_.file(name));
        else if (verb == "@file" || verb == "@bytes")
            folder_.write(name, takeBlock(verb == "@file" ? "\r\n" : ""));
        else if (verb == "@show")
            writeBlock(fs::exists(folder_.file(name)) ? folder_.read(name) : "(none)\r\n");
        else if (verb == "@list")
            writeBlock(namesInFolder());
        else
            out_ << "unknown directive\n";
    }

    std::string takeBlock(const std::string& lineEnd)
    {
        std::string text;
        for (; next_ + 1 < lines_.size() && lines_[next_ + 1].starts_with("| "); ++next_) {
            out_ << lines_[next_ + 1] << '\n';
            text += decoded(lines_[next_ + 1].substr(2)) + lineEnd;
        }
        return text;
    }

    void writeBlock(const std::string& text)
    {
        for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end + 2) {
            end = std::min(text.find("\r\n", begin), text.size());
            const std::string line = text.substr(begin, end - begin);
            out_ << "| " << std::regex_replace(line, std::regex("\n"), "\\x0A") << '\n';
        }
    }

    [[nodiscard]] std::string namesInFolder() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.path()))
            names.push_back(entry.path().filename().string() + "\r\n");
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names)
            text += name;
        return text;
    }

    void makeFresh()
    {
        for (const auto& entry : fs::directory_iterator(folder_.path()))
            fs::remove_all(entry);
        fs::copy(transcriptFolder / "folder", folder_.path());
    }

    [[nodiscard]] std::string decoded(const std::string& text) const
    {
        std::string bytes;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text.compare(i, 8, "$FOLDER/") == 0) {
                bytes += folder_.path();
                i += 7;
            } else if (text.compare(i, 2, "\\x") == 0) {
                bytes += static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16));
                i += 3;
            } else {
                bytes += text[i];
            }
        }
        return bytes;
    }

    [[nodiscard]] std::string encoded(std::string bytes) const
    {
        while (bytes.find(folder_.path()) != std::string::npos)
            bytes.replace(bytes.find(folder_.path()), folder_.path().size(), "$FOLDER/");
        bytes = std::regex_replace(bytes, std::regex("[0-9]{2}/[0-9]{2}/[0-9]{2} 12:34:00"), "$$DATE 12:34:00");
        bytes = std::regex_replace(bytes, std::regex("[0-9]{4}-[0-9]{2}-[0-9]{2} 12:34"), "$$DATE 12:34");
        bytes = std::regex_replace(bytes, std::regex("\n= " LEXIGROVE_VERSION "\n"), "\n= $$VERSION\n");
        std::string text;
        for (const char byte : bytes) {
            std::array<char, 5> code{};
            std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned char>(byte));
            text += (byte >= ' ' && byte <= '~') || byte == '\n' ? std::string(1, byte) : code.data();
        }
        return text;
    }

    TemporaryFolder folder_;
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    std::string input_;
    std::ostringstream out_;
};

class Transcript : public testing::TestWithParam<std::string>
{
};

/// Guards every text, event and number that the transcripts show. With LEXIGROVE_RECORD in the environment a transcript
/// that reads otherwise is rewritten: read what has changed before you keep it.
TEST_P(Transcript, ReadsAsItIsWritten)
{
    const fs::path file = transcriptFolder / (GetParam() + ".txt");
    std::ifstream in(file, std::ios::binary);
    const std::string written{std::istreambuf_iterator<char>(in), {}};
    const std::string played = Player(written).play();
    if (std::getenv("LEXIGROVE_RECORD") != nullptr && played != written)
        std::ofstream(file, std::ios::binary) << played;
    else
        EXPECT_EQ(played, written);
}

std::vector<std::string> transcriptNames()
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(transcriptFolder))
        if (entry.path().extension() == ".txt")
            names.push_back(entry.path().stem().string());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Console, Transcript, testing::ValuesIn(transcriptNames()),
                         [](const auto& test) { return test.param; });

} // namespace
} // namespace lexigrove
