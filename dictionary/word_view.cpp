#include "dictionary/word_view.hpp"
