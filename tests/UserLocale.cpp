#include <clocale>

// Programs that embed the library mostly take the user's locale over. So does every test program, and nothing may
// change when that writes decimals with a comma.

namespace {

[[maybe_unused]] const char* const kLocale = std::setlocale(LC_ALL, "");

}  // namespace
