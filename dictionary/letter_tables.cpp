#include "dictionary/letter_tables.hpp"
