// Feeds one number parser (chosen at build time by VELMOR_FUZZ_PARSER) arbitrary text and
// limits, in a locale with a thousands separator, through both twins. Bad text may only end in
// QelUtNumberFormatException; a crash, a sanitizer report, or the twins disagreeing is a
// failure.
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <velmor/velmor.h>

using namespace Velmor;

namespace {

// The parser's result as text, or "refused" with the text the exception keeps.
template <class Parse>
std::string fs_outcome(Parse parse) {
    try {
        auto value = parse();
        if (value != value) return "nan";  // NaN compares unequal to itself
        return std::to_string(value);
    } catch (QelUtNumberFormatException const& e) {
        return std::string("refused ") + e.getIllegalString();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    setenv("LOCPATH", VELMOR_FUZZ_LOCALE_DIR, 1);
    std::setlocale(LC_ALL, "en_US.UTF-8");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 2) return 0;
    unsigned int limit = static_cast<unsigned int>(data[0]) << 8 | data[1];
    unsigned int n = limit == 0xffff ? QelUtStr::npos : limit;
    std::string text(reinterpret_cast<char const*>(data + 2), size - 2);
    QelBtTString<char> twinText(text.data(), static_cast<unsigned int>(text.size()));
    std::string standard = fs_outcome([&] { return QelUtStr::VELMOR_FUZZ_PARSER(text, n); });
    std::string twin = fs_outcome([&] { return QelUtBtStr::VELMOR_FUZZ_PARSER(twinText, n); });
    if (standard != twin) std::abort();
    return 0;
}
