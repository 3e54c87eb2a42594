#include "tools/word_lists/word_counts.hpp"

#include "platform/text_file.hpp"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace lexigrove::tools
{

namespace
{

// The model's file: the magic, the order n as one byte, n counts, the kind of quantisation, the quantisation tables,
// one record for each word and a final one, the tries of longer sequences, the length of the words' texts, the texts,
// each terminated by a zero. Numbers are 32 bits, little-endian.
constexpr std::string_view magic = "Trie Language Model";
constexpr std::uint32_t quantised16Bit = 1;
constexpr std::size_t tableSize = (std::size_t{1} << 16U) * sizeof(float);
constexpr std::size_t recordSize = 12;   // probability, back-off weight, place in the next trie
constexpr double logarithmBase = 1.0001; // Sphinx counts probabilities in powers of it
static_assert(std::endian::native == std::endian::little, "the model is read as it lies in memory");

[[noreturn]] void refuse(const std::string& path)
{
    throw std::runtime_error("The word counts in " + path + " are not a language model of the expected kind.");
}

/// Reads numbers from the file's bytes, and refuses to read past their end.
class Bytes
{
public:
    Bytes(const std::string& bytes, const std::string& path) : bytes_(bytes), path_(path) {}

    template <typename T>
    T at(std::size_t offset) const
    {
        if (offset > bytes_.size() || bytes_.size() - offset < sizeof(T))
            refuse(path_);
        T value;
        std::memcpy(&value, bytes_.data() + offset, sizeof(T));
        return value;
    }

private:
    const std::string& bytes_;
    const std::string& path_;
};

/// The offset of the texts at the end of the file: the size before them must match their length.
std::size_t startOfTexts(const std::string& file, const std::string& path, std::uint32_t words)
{
    std::size_t start = file.size();
    for (std::uint32_t word = 0; word < words; ++word) {
        if (start < 2 || file[start - 1] != '\0')
            refuse(path);
        const std::size_t previous = file.rfind('\0', start - 2);
        if (previous == std::string::npos)
            refuse(path);
        start = previous + 1;
    }
    return start;
}

} // namespace

WordCounts readWordCounts(const std::string& path)
{
    std::string file;
    try {
        file = readFile(path);
    } catch (const FileError&) {
        throw std::runtime_error("The word counts in " + path +
                                 " cannot be read. Install Debian's package "
                                 "pocketsphinx-en-us, or see LEXIGROVE_WORD_SOURCES.");
    }
    const Bytes bytes(file, path);
    if (!file.starts_with(magic))
        refuse(path);
    const auto order = bytes.at<std::uint8_t>(magic.size());
    const std::size_t counts = magic.size() + 1;
    const auto words = bytes.at<std::uint32_t>(counts);
    const std::size_t quantisation = counts + order * sizeof(std::uint32_t);
    if (order < 2 || words == 0 || bytes.at<std::uint32_t>(quantisation) != quantised16Bit)
        refuse(path);
    const std::size_t tables = 2U * (order - 2U) + 1U; // two for each middle length, one for the longest
    const std::size_t records = quantisation + sizeof(std::uint32_t) + tables * tableSize;
    std::size_t text = startOfTexts(file, path, words);
    if (bytes.at<std::uint32_t>(text - sizeof(std::uint32_t)) != file.size() - text)
        refuse(path);

    WordCounts result;
    for (std::uint32_t word = 0; word < words; ++word) {
        const std::string spelling(file.c_str() + text);
        const auto probability = bytes.at<float>(records + word * recordSize);
        if (!(probability <= 0))
            refuse(path);
        result[spelling] = static_cast<double>(probability) * std::log(logarithmBase);
        text += spelling.size() + 1;
    }
    return result;
}

} // namespace lexigrove::tools
