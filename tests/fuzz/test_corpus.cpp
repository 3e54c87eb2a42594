#include "platform/text_file.hpp"
#include "tests/fuzz/readers.hpp"

#include <filesystem>
#include <gtest/gtest.h>

namespace lexigrove
{

/// Guards against what fuzzing has found, and keeps its ways in working: each text of the corpus, and beginnings of it.
TEST(Corpus, IsReadOrRefused)
{
    for (const auto& [name, reader] : readers()) {
        int texts = 0;
        for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS + name)) {
            const std::string text = readFile(entry.path().string());
            for (const std::size_t length : {text.size(), text.size() * 2 / 3, text.size() / 7})
                reader(text.substr(0, length));
            ++texts;
        }
        EXPECT_GT(texts, 0) << name;
    }
}

} // namespace lexigrove
