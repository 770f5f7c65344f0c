// SPDX-License-Identifier: MIT
// The cost of the real window: from a click to the repainted grid, and from the start of a process
// to its first painted window. On Qt's offscreen platform unless QT_QPA_PLATFORM names another one.
#include "MinimalPuzzles.h"

#include "model/Fields.h"
#include "play/Play.h"
#include "qt/QtForm.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/Colors.h"
#include "ui/Paces.h"
#include "ui/frmTessarin.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <deque>
#include <mutex>
#include <thread>

namespace tessarin {
namespace {

double MillisecondsSince(std::chrono::steady_clock::time_point start) {
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return time.count();
}

struct Window {
    qt::QtPlatform Platform{VersionRecord{}};
    qt::QtToolkit Toolkit{Platform};
    frmTessarin Form{Toolkit};

    Window() {
        Form.Show();
        PumpEvents(Pump::Now);
    }
    void Load(const std::string& puzzle) {
        goGame->FileImportCSV(PUZZLES + puzzle + ".csv");
        goGame->Fields->SetIndex(1);
        Form.RefreshAll();
        PumpEvents(Pump::Now);
    }
    void Solve() {
        Form.btnSolve.RaiseClick();
        PumpEvents(Pump::Now);
    }
};

void SolveFromClick(benchmark::State& state, const char* puzzle, const char* pace) {
    Window window;
    window.Form.PaceOption(pace).Select();
    for (auto _ : state) {
        state.PauseTiming();
        window.Load(puzzle);
        state.ResumeTiming();
        window.Solve();
    }
    if (!goGame->Fields->IsWinner()) state.SkipWithError("not solved");
}
BENCHMARK_CAPTURE(SolveFromClick, quiet_easy, "easy-1", "Quiet")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SolveFromClick, quiet_hard, "hard-1", "Quiet")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SolveFromClick, painted_easy, "easy-1", "0")->Unit(benchmark::kMillisecond);

// Counts the updates of the screen and the pictures of the rotor that are painted.
class Audience : public QObject {
public:
    explicit Audience(QWidget& form) {
        qApp->installEventFilter(this);
        mForm = &form;
    }
    int Updates = 0;
    int RotorPictures = 0;

private:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (receiver == mForm && event->type() == QEvent::UpdateRequest) ++Updates;
        if (event->type() == QEvent::Paint && receiver->objectName().startsWith("Image1"))
            ++RotorPictures;
        return false;
    }
    QWidget* mForm;
};

// The pace "0", with the side column open: what a user sees of a solve, and how long a move takes.
void SolveAtPaceZero(benchmark::State& state) {
    Window window;
    window.Form.SetInfoVisible(true);
    window.Form.PaceOption("0").Select();
    int changes = 0;
    const auto counter = goGame->Events.StatusChanged.Connect([&](int) { ++changes; });
    for (auto _ : state) {
        state.PauseTiming();
        window.Load("hard-1");
        changes = 0;
        Audience audience(window.Platform.Window());
        state.ResumeTiming();
        const auto start = std::chrono::steady_clock::now();
        window.Solve();
        state.counters["ms_per_change"] = MillisecondsSince(start) / changes;
        state.counters["changes"] = changes;
        state.counters["screen_updates"] = audience.Updates;
        state.counters["rotor_pictures"] = audience.RotorPictures;
    }
}
BENCHMARK(SolveAtPaceZero)->Unit(benchmark::kMillisecond);

// The same solves without a window.
void SolveWithoutWindow(benchmark::State& state, const char* puzzle) {
    Game game;
    for (auto _ : state) {
        state.PauseTiming();
        game.FileImportCSV(PUZZLES + std::string(puzzle) + ".csv");
        state.ResumeTiming();
        game.Play->Solve();
    }
}
BENCHMARK_CAPTURE(SolveWithoutWindow, easy, "easy-1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SolveWithoutWindow, hard, "hard-1")->Unit(benchmark::kMillisecond);

// Quiet solves of a thousand random puzzles, from click to repainted grid. hardest_ms is the
// longest.
void SolveMinimalPuzzles(benchmark::State& state) {
    Window window;
    window.Form.PaceOption("Quiet").Select();
    MinimalPuzzles puzzles(1);
    double hardest = 0;
    for (auto _ : state)
        for (int i = 0; i < 1000; ++i) {
            state.PauseTiming();
            const auto cells = puzzles.Next();
            goGame->Fields->Clear();
            goGame->Play->Reset();
            for (std::size_t k = 0; k < cells.size(); ++k)
                goGame->Fields->Items.Item(static_cast<int>(k) + 1)->SetValue(cells[k]);
            goGame->Fields->SetLockAll(true);
            window.Form.RefreshAll();
            PumpEvents(Pump::Now);
            state.ResumeTiming();
            const auto start = std::chrono::steady_clock::now();
            window.Solve();
            hardest = std::max(hardest, MillisecondsSince(start));
        }
    state.counters["hardest_ms"] = hardest;
}
BENCHMARK(SolveMinimalPuzzles)->Unit(benchmark::kMillisecond)->Iterations(1);

// Another thread clicks on a field every millisecond during solves. The delays of the answers:
// latest_ms is the longest, mean_ms the average.
void ClicksWhileSolving(benchmark::State& state, const char* pace) {
    Window window;
    window.Form.PaceOption(pace).Select();
    std::mutex mutex;
    std::deque<std::chrono::steady_clock::time_point> clicked;
    int clicks = 0;
    double latest = 0, sum = 0;
    window.Form.lblField.Click = [&](int) {
        const std::scoped_lock lock(mutex);
        const double late = MillisecondsSince(clicked.front());
        clicked.pop_front();
        latest = std::max(latest, late);
        sum += late;
        ++clicks;
    };
    std::atomic<bool> solving = false;
    std::jthread user([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            if (!solving) continue;
            {
                const std::scoped_lock lock(mutex);
                clicked.push_back(std::chrono::steady_clock::now());
            }
            QMetaObject::invokeMethod(
                qApp, [&] { window.Form.lblField(41).RaiseClick(); }, Qt::QueuedConnection);
        }
    });
    for (auto _ : state) {
        state.PauseTiming();
        window.Load("hard-1");
        state.ResumeTiming();
        solving = true;
        window.Solve();
        solving = false;
    }
    user = {};
    PumpEvents(Pump::Now);
    state.counters["latest_ms"] = latest;
    state.counters["mean_ms"] = sum / std::max(clicks, 1);
}
BENCHMARK_CAPTURE(ClicksWhileSolving, quiet, "Quiet")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ClicksWhileSolving, painted, "0")->Unit(benchmark::kMillisecond);

// Paints one field and brings it to the screen. Its mark changes each time, or nothing does.
void PaintOneField(benchmark::State& state, bool changing) {
    Window window;
    int mark = 0;
    for (auto _ : state) {
        window.Form.PaintField(41, changing && (++mark & 1) != 0);
        PumpEvents(Pump::Now);
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
            PumpEvents(Pump::Now);
            state.ResumeTiming();
        }
        window.Form.RefreshAll();
        PumpEvents(Pump::Now);
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

// As many controls of each kind in the same fonts, made only of Qt's widgets; with simpler menus.
class BareWindow : public QWidget {
public:
    BareWindow() {
        QApplication::setStyle(QStyleFactory::create("fusion"));
        QFont font = QApplication::font();
        font.setPixelSize(12);
        QApplication::setFont(font);
        setFixedSize(588, 457);
        for (const char* const title : {"File", "Edit", "View", "?"}) {
            QMenu* const menu = mMenuBar.addMenu(title);
            for (const char* const entry : {"Import", "Export", "Quit"})
                menu->addAction(entry);
        }
        mMenuBar.resize(588, 19);
        Add<QLabel>(*this, "", "", 10, 20, 8, 569, 17);
        for (int k = 0; k < 81; ++k)
            Add<QLabel>(*this, "", "Arial Black", 27, 20 + k % 9 * 40, 30 + k / 9 * 40);
        auto& pad = Add<QFrame>(*this, {}, "Arial", 27, 410, 28, 160, 420);
        for (int k = 0; k < 12; ++k)
            Add<QPushButton>(pad, QString::number(k), "Arial", 27, k % 3 * 50, k / 3 * 50);
        for (int k = 0; k < 7; ++k)
            Add<QPushButton>(pad, QString::number(k), "Arial", 19, 10, 220);
        for (int k = 0; k < 2; ++k)
            Add<QLabel>(pad, "", "Arial", 19, 10 + 100 * k, 320);
        auto& side = Add<QGroupBox>(*this, "Chillout", "", 10, 590, 28, 169, 420);
        for (const Pace& pace : Paces)
            Add<QRadioButton>(side, pace.Caption, "", 10, 10, 20);
        Add<QLabel>(side, "Index=81", "", 10, 10, 200, 100, 200);
    }

private:
    template <class Widget>
    static Widget& Add(QWidget& parent, const QString& text, const QString& family, int pixels,
                       int x, int y, int width = 40, int height = 40) {
        auto* const widget = new Widget(&parent);
        widget->setGeometry(x, y, width, height);
        QFont font = QApplication::font();
        if (!family.isEmpty()) font.setFamily(family);
        font.setPixelSize(pixels);
        widget->setFont(font);
        widget->setToolTip(text);
        if constexpr (requires { widget->setText(text); }) widget->setText(text);
        return *widget;
    }

    QMenuBar mMenuBar{this};
};

// Shows the program's window or a bare one until it is painted.
int ShowOnce(bool bare) {
    UntilFirstPaint filter;
    qApp->installEventFilter(&filter);
    if (!bare) {
        qt::QtPlatform platform(VersionRecord{});
        qt::QtToolkit toolkit(platform);
        frmTessarin form(toolkit);
        form.Show();
        return QApplication::exec();
    }
    BareWindow window;
    window.show();
    return QApplication::exec();
}

// The run time of a process that ends when its window is first painted.
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
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--show-once")
        return tessarin::ShowOnce(arguments.value(2) == "bare");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
