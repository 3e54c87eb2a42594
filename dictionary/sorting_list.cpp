#include "dictionary/sorting_list.hpp"
