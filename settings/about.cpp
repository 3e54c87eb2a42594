#include "settings/about.hpp"

namespace lexigrove
{

AboutForm::AboutForm()
    : AboutText{"LexiGrove - January 2005\r\n"
                "A game of words on a board of letters\r\n"
                "Made by the LexiGrove authors, with thanks to all who collect words\r\n"
                "Free software under the MIT License"},
      AboutOk{"OK"}
{
}

} // namespace lexigrove
