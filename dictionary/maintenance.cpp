#include "dictionary/maintenance.hpp"
