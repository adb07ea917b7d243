#include <velmor/core/QelAnsi.h>

namespace Velmor {

std::istream& QelAnsi::cin = std::cin;
std::ostream& QelAnsi::cout = std::cout;
std::ostream& QelAnsi::cerr = std::cerr;
std::ostream& QelAnsi::clog = std::clog;
std::wistream& QelAnsi::wcin = std::wcin;
std::wostream& QelAnsi::wcout = std::wcout;
std::wostream& QelAnsi::wcerr = std::wcerr;
std::wostream& QelAnsi::wclog = std::wclog;

}  // namespace Velmor
