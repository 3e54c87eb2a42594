#include "dictionary/maintained_format.hpp"
