// Numbers to text and back, beside the C library and <charconv>, in a locale with grouping.
#include <benchmark/benchmark.h>

#include <charconv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <velmor/velmor.h>

using namespace Velmor;

namespace {

std::vector<int> const fs_ints = {0, 7, -42, 1234, -98765, 1234567, -2147483647, 2000000000};
std::vector<double> const fs_doubles = {0.0, 1.5, -1234.5, 3.14159, 1e9 + 0.25, -7.125e5};

struct LocaleWithGrouping {
    LocaleWithGrouping() {
        setenv("LOCPATH", VELMOR_BENCH_LOCALE_DIR, 1);
        if (std::setlocale(LC_ALL, "en_US.UTF-8") == nullptr) std::abort();
    }
};
LocaleWithGrouping const fs_locale;

template <class Body>
void fs_overInts(benchmark::State& state, Body body) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(body(fs_ints[i++ % fs_ints.size()]));
    }
}

template <class Body>
void fs_overDoubles(benchmark::State& state, Body body) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(body(fs_doubles[i++ % fs_doubles.size()]));
    }
}

std::string fs_print(char const* format, int value) {
    char text[32];
    int length = std::snprintf(text, sizeof text, format, value);
    return std::string(text, static_cast<std::size_t>(length));
}

std::string fs_print(char const* format, double value) {
    char text[64];
    int length = std::snprintf(text, sizeof text, format, value);
    return std::string(text, static_cast<std::size_t>(length));
}

std::vector<std::string> fs_texts(std::vector<std::string> texts) { return texts; }

std::vector<std::string> const fs_intTexts =
    fs_texts({"0", "7", "-42", "1234", "-98765", "1234567", "-2147483647", "2000000000"});
std::vector<std::string> const fs_groupedTexts =
    fs_texts({"0", "7", "-42", "1,234", "-98,765", "1,234,567", "-2,147,483,647", "2,000,000,000"});
std::vector<std::string> const fs_doubleTexts =
    fs_texts({"0", "1.5", "-1234.5", "3.14159", "1000000000.25", "-712500"});
std::vector<std::string> const fs_groupedDoubleTexts =
    fs_texts({"0", "1.5", "-1,234.5", "3.14159", "1,000,000,000.25", "-712,500"});

template <class Body>
void fs_overTexts(benchmark::State& state, std::vector<std::string> const& texts, Body body) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(body(texts[i++ % texts.size()]));
    }
}

}  // namespace

static void intToStr_velmor(benchmark::State& s) { fs_overInts(s, QelUtStr::intToStr); }
static void intToStr_snprintf(benchmark::State& s) {
    fs_overInts(s, [](int v) { return fs_print("%d", v); });
}
static void intToStr_to_chars(benchmark::State& s) {
    fs_overInts(s, [](int v) {
        char text[16];
        auto result = std::to_chars(text, text + sizeof text, v);
        return std::string(text, result.ptr);
    });
}
static void intToThousandsSep_velmor(benchmark::State& s) {
    fs_overInts(s, QelUtStr::intToThousandsSep);
}
static void intToThousandsSep_snprintf(benchmark::State& s) {
    fs_overInts(s, [](int v) { return fs_print("%'d", v); });
}
static void doubleToStr_velmor(benchmark::State& s) { fs_overDoubles(s, QelUtStr::doubleToStr); }
static void doubleToStr_snprintf(benchmark::State& s) {
    fs_overDoubles(s, [](double v) { return fs_print("%g", v); });
}
static void doubleToStr_to_chars(benchmark::State& s) {
    fs_overDoubles(s, [](double v) {
        char text[32];
        auto result = std::to_chars(text, text + sizeof text, v, std::chars_format::general, 6);
        return std::string(text, result.ptr);
    });
}
static void doubleToThousandsSep_velmor(benchmark::State& s) {
    fs_overDoubles(s, [](double v) { return QelUtStr::doubleToThousandsSep(v, 2); });
}
static void doubleToThousandsSep_snprintf(benchmark::State& s) {
    fs_overDoubles(s, [](double v) { return fs_print("%'.2f", v); });
}
static void strToInt_velmor(benchmark::State& s) {
    fs_overTexts(s, fs_intTexts, [](std::string const& t) { return QelUtStr::strToInt(t); });
}
static void strToInt_strtol(benchmark::State& s) {
    fs_overTexts(s, fs_intTexts,
                 [](std::string const& t) { return std::strtol(t.c_str(), nullptr, 10); });
}
static void strToInt_from_chars(benchmark::State& s) {
    fs_overTexts(s, fs_intTexts, [](std::string const& t) {
        int value = 0;
        std::from_chars(t.data(), t.data() + t.size(), value);
        return value;
    });
}
static void thousandsSepToInt_velmor(benchmark::State& s) {
    fs_overTexts(s, fs_groupedTexts,
                 [](std::string const& t) { return QelUtStr::thousandsSepToInt(t); });
}
static void thousandsSepToInt_strtol(benchmark::State& s) {
    fs_overTexts(s, fs_intTexts,
                 [](std::string const& t) { return std::strtol(t.c_str(), nullptr, 10); });
}
static void thousandsSepToInt_sscanf(benchmark::State& s) {
    fs_overTexts(s, fs_groupedTexts, [](std::string const& t) {
        int value = 0;
        std::sscanf(t.c_str(), "%'d", &value);
        return value;
    });
}
static void strToDouble_velmor(benchmark::State& s) {
    fs_overTexts(s, fs_doubleTexts, [](std::string const& t) { return QelUtStr::strToDouble(t); });
}
static void strToDouble_strtod(benchmark::State& s) {
    fs_overTexts(s, fs_doubleTexts,
                 [](std::string const& t) { return std::strtod(t.c_str(), nullptr); });
}
static void strToDouble_from_chars(benchmark::State& s) {
    fs_overTexts(s, fs_doubleTexts, [](std::string const& t) {
        double value = 0;
        std::from_chars(t.data(), t.data() + t.size(), value);
        return value;
    });
}
static void thousandsSepToDouble_velmor(benchmark::State& s) {
    fs_overTexts(s, fs_groupedDoubleTexts,
                 [](std::string const& t) { return QelUtStr::thousandsSepToDouble(t); });
}
static void thousandsSepToDouble_strtod(benchmark::State& s) {
    fs_overTexts(s, fs_doubleTexts,
                 [](std::string const& t) { return std::strtod(t.c_str(), nullptr); });
}
static void thousandsSepToDouble_sscanf(benchmark::State& s) {
    fs_overTexts(s, fs_groupedDoubleTexts, [](std::string const& t) {
        double value = 0;
        std::sscanf(t.c_str(), "%'lf", &value);
        return value;
    });
}

#define VELMOR_PAIR(operation, implementation) \
    BENCHMARK(operation##_##implementation)->Name(#operation "/" #implementation)

VELMOR_PAIR(intToStr, velmor);
VELMOR_PAIR(intToStr, snprintf);
VELMOR_PAIR(intToStr, to_chars);
VELMOR_PAIR(intToThousandsSep, velmor);
VELMOR_PAIR(intToThousandsSep, snprintf);
VELMOR_PAIR(doubleToStr, velmor);
VELMOR_PAIR(doubleToStr, snprintf);
VELMOR_PAIR(doubleToStr, to_chars);
VELMOR_PAIR(doubleToThousandsSep, velmor);
VELMOR_PAIR(doubleToThousandsSep, snprintf);
VELMOR_PAIR(strToInt, velmor);
VELMOR_PAIR(strToInt, strtol);
VELMOR_PAIR(strToInt, from_chars);
VELMOR_PAIR(thousandsSepToInt, velmor);
VELMOR_PAIR(thousandsSepToInt, strtol);
VELMOR_PAIR(thousandsSepToInt, sscanf);
VELMOR_PAIR(strToDouble, velmor);
VELMOR_PAIR(strToDouble, strtod);
VELMOR_PAIR(strToDouble, from_chars);
VELMOR_PAIR(thousandsSepToDouble, velmor);
VELMOR_PAIR(thousandsSepToDouble, strtod);
VELMOR_PAIR(thousandsSepToDouble, sscanf);

BENCHMARK_MAIN();
