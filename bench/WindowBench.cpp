// What the real window costs on Qt's offscreen platform, from the click to the repainted grid, and
// from the start of a process to its first painted window.
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/Colors.h"
#include "ui/frmTessarin.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QTimer>

#include <chrono>

namespace tessarin {
namespace {

class CountingPlatform final : public qt::QtPlatform {
public:
    int Pumps = 0;
    void PumpEvents() override {
        ++Pumps;
        QtPlatform::PumpEvents();
    }
};

struct Window {
    CountingPlatform Platform;
    qt::QtToolkit Toolkit{Platform};
    frmTessarin Form{Toolkit};

    Window() {
        Form.Show();
        PumpEvents();
    }
    void Load(const std::string& puzzle) {
        goGame->FileImportCSV(PUZZLES + puzzle + ".csv");
        goGame->Fields->SetIndex(1);
        Form.RefreshAll();
        PumpEvents();
    }
    void Solve() {
        Form.btnSolve.RaiseClick();
        PumpEvents();
    }
};

// By option of the side column: 0 is quiet, 1 paints every move without a pause.
void SolveFromClick(benchmark::State& state, const char* puzzle, int option) {
    Window window;
    window.Form.optChill(option).Select();
    for (auto _ : state) {
        state.PauseTiming();
        window.Load(puzzle);
        state.ResumeTiming();
        window.Solve();
    }
    if (!goGame->Fields->IsWinner()) state.SkipWithError("not solved");
}
BENCHMARK_CAPTURE(SolveFromClick, quiet_easy, "easy-1", 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SolveFromClick, quiet_hard, "hard-1", 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SolveFromClick, painted_easy, "easy-1", 1)->Unit(benchmark::kMillisecond);

// The pumps of the same solve with nothing between them.
void BarePumps(benchmark::State& state, const char* puzzle) {
    Window window;
    window.Form.optChill(0).Select();
    window.Load(puzzle);
    window.Platform.Pumps = 0;
    window.Solve();
    const int pumps = window.Platform.Pumps;
    for (auto _ : state)
        for (int i = 0; i < pumps; ++i)
            PumpEvents();
    state.SetItemsProcessed(state.iterations() * pumps);
}
BENCHMARK_CAPTURE(BarePumps, easy, "easy-1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BarePumps, hard, "hard-1")->Unit(benchmark::kMillisecond);

// One field painted and brought to the screen; its value changes, or nothing does.
void PaintOneField(benchmark::State& state, bool changing) {
    Window window;
    int mark = 0;
    for (auto _ : state) {
        window.Form.PaintField(41, changing && (++mark & 1) != 0);
        PumpEvents();
    }
}
BENCHMARK_CAPTURE(PaintOneField, changed, true);
BENCHMARK_CAPTURE(PaintOneField, unchanged, false);

void RefreshAll(benchmark::State& state, bool changing) {
    Window window;
    window.Load("hard-1");
    for (auto _ : state) {
        if (changing) {
            state.PauseTiming();
            for (int k = 1; k <= 81; ++k)
                window.Form.lblField(k).SetBackColor(Yellow);
            PumpEvents();
            state.ResumeTiming();
        }
        window.Form.RefreshAll();
        PumpEvents();
    }
}
BENCHMARK_CAPTURE(RefreshAll, changed, true);
BENCHMARK_CAPTURE(RefreshAll, unchanged, false);

class UntilFirstPaint : public QObject {
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QApplication::quit);
        return false;
    }
};

// Shows the program's window or a bare one with 81 labels until it has been painted.
int ShowOnce(bool bare) {
    UntilFirstPaint filter;
    qApp->installEventFilter(&filter);
    if (!bare) {
        qt::QtPlatform platform;
        qt::QtToolkit toolkit(platform);
        frmTessarin form(toolkit);
        form.Show();
        return QApplication::exec();
    }
    QWidget window;
    window.setFixedSize(590, 478);
    for (int k = 0; k < 81; ++k)
        (new QLabel(QString::number(k % 9 + 1), &window))
            ->setGeometry(20 + k % 9 * 40, 30 + k / 9 * 40, 40, 40);
    window.show();
    return QApplication::exec();
}

// The whole life of a process that ends with its first painted window.
void FirstPaint(benchmark::State& state, const char* which) {
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        if (QProcess::execute(QApplication::applicationFilePath(), {"--show-once", which}) != 0)
            state.SkipWithError("no first paint");
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}
BENCHMARK_CAPTURE(FirstPaint, tessarin, "tessarin")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);
BENCHMARK_CAPTURE(FirstPaint, bare_window, "bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);

} // namespace
} // namespace tessarin

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--show-once")
        return tessarin::ShowOnce(arguments.value(2) == "bare");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
