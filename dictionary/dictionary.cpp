#include "dictionary/dictionary.hpp"
