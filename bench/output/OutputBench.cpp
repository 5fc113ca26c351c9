// Appending a result line to the output box, with the paint that follows, to an empty output and to one of
// 1 MB. Beside it the obvious way as rival: taking the whole text and writing it back with the line added.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <string>

#include "windows/CrLfText.h"
#include "windows/CrLfTextBox.h"

namespace {

using namespace calvoro;

constexpr std::string_view kLine =
    "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\r\n";
constexpr int kMegabyte = 1 << 20;
constexpr int kAppends = 200;  // so few that an empty output stays a small one

std::string OutputOf(int size) {
    std::string text;
    while (static_cast<int>(text.size()) < size) text += kLine;
    return text;
}

void ScrollToEnd(QPlainTextEdit& box) {
    if (const int length = CrLfLength(box); length > 0) SetCaret(box, length - 1);
    box.ensureCursorVisible();
    QApplication::processEvents();
}

void AppendAtTheEnd(QPlainTextEdit& box) {
    AppendCrLfText(box, kLine);
    ScrollToEnd(box);
}

void RewriteTheWhole(QPlainTextEdit& box) {
    std::string text = CrLfText(box);
    text += kLine;
    SetCrLfText(box, text);
    ScrollToEnd(box);
}

void Run(benchmark::State& state, void (*append)(QPlainTextEdit&)) {
    CrLfTextBox box(nullptr);
    box.resize(900, 300);
    SetCrLfText(box, OutputOf(static_cast<int>(state.range(0))));
    box.show();
    ScrollToEnd(box);
    for (auto _ : state) append(box);
}

void BM_Append(benchmark::State& state) {
    Run(state, AppendAtTheEnd);
}
BENCHMARK(BM_Append)->Arg(0)->Arg(kMegabyte)->Iterations(kAppends)->Unit(benchmark::kMicrosecond);

void BM_Rewrite(benchmark::State& state) {
    Run(state, RewriteTheWhole);
}
BENCHMARK(BM_Rewrite)->Arg(0)->Arg(kMegabyte)->Iterations(5)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
