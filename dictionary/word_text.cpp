#include "dictionary/word_text.hpp"
