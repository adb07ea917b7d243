// Feeds one number parser (chosen at build time by VELMOR_FUZZ_PARSER) arbitrary text and
// limits, in a locale with a thousands separator. Bad text may only end in
// QelUtNumberFormatException; crashes and sanitizer reports are failures.
#include <clocale>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <velmor/velmor.h>

using namespace Velmor;

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
    try {
        volatile auto value = QelUtStr::VELMOR_FUZZ_PARSER(text, n);
        (void)value;
    } catch (QelUtNumberFormatException const& e) {
        if (e.what()[0] == '\0') std::abort();
    }
    return 0;
}
