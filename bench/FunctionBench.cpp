// SPDX-License-Identifier: MIT
// Single functions of the per-entry path, with Google Benchmark.
#include "base/Blanks.h"
#include "base/CodePage.h"
#include "base/LineBreak.h"
#include "logbook/FoldIntoPrevious.h"
#include "logbook/TimeStamps.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

void BenchTrim(benchmark::State& state) {
    const std::string field = "   GEO" + std::string(32, ' ');
    for (auto _ : state)
        benchmark::DoNotOptimize(Trim(field));
}
BENCHMARK(BenchTrim);

void BenchFindLineBreak(benchmark::State& state) {
    std::string line(static_cast<std::size_t>(state.range(0)), 'x');
    line += "\r\n" + std::string(LineBreakOverrun, 'y');
    for (auto _ : state)
        benchmark::DoNotOptimize(FindLineBreak(line.data()));
}
BENCHMARK(BenchFindLineBreak)->Arg(20)->Arg(72);

void BenchEncode(benchmark::State& state) {
    const CodePage codePage;
    const std::string text =
        state.range(0) != 0 ? "P2702 K\xFChlmittel fehlt, Pumpe 3" : "P2702 Coolant low, pump 3 is off";
    std::string out(text.size() * CodePage::MostBytes + CodePage::Overrun, '\0');
    for (auto _ : state)
        benchmark::DoNotOptimize(codePage.Encode(text, out.data()));
}
BENCHMARK(BenchEncode)->Arg(0)->Arg(1);

void BenchPackStamp(benchmark::State& state) {
    const CodePage codePage;
    TimeStamps stamps;
    PackedStamp packed;
    for (auto _ : state)
        benchmark::DoNotOptimize(stamps.Pack("04.01.2010 12:34:56.789", codePage, packed));
}
BENCHMARK(BenchPackStamp);

void BenchFoldRelease(benchmark::State& state) {
    ParsedEntry previous;
    ParsedEntry next;
    previous.EventType = next.EventType = EventTypes::Key;
    next.Data = "ENT up code 0x000D mode MANUAL";
    for (auto _ : state) {
        previous.Data = "ENT down code 0x000D mode MANUAL";
        benchmark::DoNotOptimize(FoldIntoPrevious(next, previous));
    }
}
BENCHMARK(BenchFoldRelease);

} // namespace

BENCHMARK_MAIN();
