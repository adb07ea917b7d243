// The cost of a traced frame whose events all stay below the threshold, beside the same
// function with no frame at all.
#include <benchmark/benchmark.h>

#include <sstream>

#include <velmor/core/QelCoTextOstreamTraceFormatter.h>
#include <velmor/core/QelCoTrace.h>

namespace {

__attribute__((noinline)) int fs_emptyFunction(int value) {
    benchmark::DoNotOptimize(value);
    return value;
}

// Opens a frame, sends an argument and a mark, and closes: three events below the threshold.
__attribute__((noinline)) int fs_tracedFunction(int value) {
    Velmor::QelCoTrace trace("Bench", "tracedFunction");
    trace.arg("value", value);
    benchmark::DoNotOptimize(value);
    trace.mark("done");
    return value;
}

template <int (*Function)(int)>
void fs_run(benchmark::State& state) {
    std::ostringstream sink;
    Velmor::QelCoTextOstreamTraceFormatter formatter(&sink, 0);
    Velmor::QelCoTrace::cs_enableTrace(&formatter, 100);
    int value = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(value = Function(value + 1));
    Velmor::QelCoTrace::cs_disableTrace();
    if (!sink.str().empty()) state.SkipWithError("an event passed the threshold");
}

}  // namespace

BENCHMARK(fs_run<fs_tracedFunction>)->Name("frame_below_threshold/velmor");
BENCHMARK(fs_run<fs_emptyFunction>)->Name("frame_below_threshold/empty_call");

BENCHMARK_MAIN();
