#include "dictionary/field_cipher.hpp"
