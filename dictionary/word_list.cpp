#include "dictionary/word_list.hpp"
