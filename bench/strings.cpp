// QelBtTString<char> beside std::string on the everyday operations, for several sizes.
#include <benchmark/benchmark.h>

#include <string>
#include <thread>

#include <velmor/velmor.h>

using Velmor::QelBtTString;
using VString = QelBtTString<char>;

namespace {

// One thread started and joined before measuring, so that the standard library runs in its
// multithreaded mode.
struct MultithreadedMode {
    MultithreadedMode() {
        std::thread([] {}).join();
    }
};
MultithreadedMode const fs_multithreaded;

std::string fs_text(std::size_t size) {
    std::string text;
    for (std::size_t i = 0; i < size; ++i)
        text += static_cast<char>('a' + i % 23);
    return text;
}

template <class Str>
Str fs_make(std::string const& text) {
    return Str(text.c_str());
}

template <class Str>
void construct(benchmark::State& state) {
    std::string text = fs_text(static_cast<std::size_t>(state.range(0)));
    char const* literal = text.c_str();
    for (auto _ : state) {
        Str s(literal);
        benchmark::DoNotOptimize(s);
    }
}

template <class Str>
void copy(benchmark::State& state) {
    Str source = fs_make<Str>(fs_text(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        Str s(source);
        benchmark::DoNotOptimize(s);
    }
}

template <class Str>
void copyThenModify(benchmark::State& state) {
    Str source = fs_make<Str>(fs_text(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        Str s(source);
        s[0] = 'Z';
        benchmark::DoNotOptimize(s);
    }
}

template <class Str>
void appendChars(benchmark::State& state) {
    bool reserve = state.range(0) != 0;
    for (auto _ : state) {
        Str s;
        if (reserve) s.reserve(1000001);
        for (int i = 0; i < 1000000; ++i)
            s += 'x';
        benchmark::DoNotOptimize(s);
    }
}

template <class Str>
void findChar(benchmark::State& state) {
    Str s = fs_make<Str>(fs_text(4096) + "#");
    for (auto _ : state)
        benchmark::DoNotOptimize(s.find('#', 0));
}

template <class Str>
void findSubstring(benchmark::State& state) {
    Str s = fs_make<Str>(fs_text(4096) + "needle");
    for (auto _ : state)
        benchmark::DoNotOptimize(s.find("needle", 0));
}

template <class Str>
void compare(benchmark::State& state) {
    std::string text = fs_text(static_cast<std::size_t>(state.range(0)));
    Str a = fs_make<Str>(text);
    Str b = fs_make<Str>(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(a.compare(b));
}

template <class Str>
void substr(benchmark::State& state) {
    std::size_t size = static_cast<std::size_t>(state.range(0));
    Str s = fs_make<Str>(fs_text(size * 2));
    for (auto _ : state) {
        Str part = s.substr(static_cast<unsigned int>(size / 2), static_cast<unsigned int>(size));
        benchmark::DoNotOptimize(part);
    }
}

void fs_sizes(benchmark::internal::Benchmark* b) {
    for (long size : {7, 15, 64, 1024, 65536})
        b->Arg(size);
}

}  // namespace

#define VELMOR_STRING_PAIR(operation, configure)                                   \
    BENCHMARK_TEMPLATE(operation, VString)->Name(#operation "/velmor")->configure; \
    BENCHMARK_TEMPLATE(operation, std::string)->Name(#operation "/std")->configure

VELMOR_STRING_PAIR(construct, Apply(fs_sizes));
VELMOR_STRING_PAIR(copy, Apply(fs_sizes));
VELMOR_STRING_PAIR(copyThenModify, Apply(fs_sizes));
VELMOR_STRING_PAIR(appendChars, Arg(0)->Arg(1)->Unit(benchmark::kMillisecond));
VELMOR_STRING_PAIR(findChar, Arg(4096));
VELMOR_STRING_PAIR(findSubstring, Arg(4096));
VELMOR_STRING_PAIR(compare, Apply(fs_sizes));
VELMOR_STRING_PAIR(substr, Apply(fs_sizes));

BENCHMARK_MAIN();
