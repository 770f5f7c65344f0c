// SPDX-License-Identifier: MIT
// The window, its boxes and file dialogs: places, colours, screen reader, activation, closing. The
// fixture looks at window and keyboard after each step.
#include "QtFixture.h"
#include "qt/BoxPlace.h"
#include "qt/QtLook.h"
#include "qt/WindowFrame.h"
#include "support/modDateTime.h"
#include "ui/Colors.h"

#include <ctime>

namespace tessarin {

static bool Has(const QImage& image, QColor color) {
    return !QRegion(QBitmap::fromImage(image.createMaskFromColor(color.rgb(), Qt::MaskOutColor)))
                .isEmpty();
}

// Notes what is painted.
struct Eye : QObject {
    QSet<QObject*> Painted;
    bool eventFilter(QObject* seen, QEvent* event) override {
        if (event->type() == QEvent::Paint) Painted.insert(seen);
        return false;
    }
};

// The entries of a menu, with those of its own menus in brackets.
static QString Entries(const QWidget& menu) {
    QStringList entries;
    for (const QAction* const entry : menu.actions()) {
        entries << (entry->isSeparator() ? "-" : entry->text());
        if (entry->menu()) entries << "(" + Entries(*entry->menu()) + ")";
    }
    return entries.join(" ");
}

class WindowTest : public QtFixture, public testing::WithParamInterface<const char*> {};

TEST_F(WindowTest, TheWindowIsTheSameOnEveryDesktop) {
    EXPECT_TRUE(form->isLeftToRight());
    EXPECT_EQ(form->style()->name(), "fusion");
    EXPECT_FALSE(form->windowIcon().isNull());
    const auto* const menus = form->findChild<QMenuBar*>();
    EXPECT_EQ(form->childAt(5, 15), menus);
    EXPECT_EQ(Entries(*menus), "File (Import Export - Quit) Edit (Clear (Free All) "
                               "Lock All (Set Clear)) View (Freedom - Groups Neighbours) "
                               "? (About)");
    const QSize narrow = form->frameSize();
    // Twips, 15 to a pixel. First grid, number pad and margins, then the side column with its gap.
    EXPECT_NEAR(narrow.width(), 8850 / 15, 2);
    EXPECT_EQ(narrow.height(), 7170 / 15);
    // A wrong state: jwm sets it for a large window.
    if (QApplication::platformName() == "xcb")
        form->windowHandle()->setWindowStates(Qt::WindowFullScreen);
    // As with a thinner frame: the edge of the side column must not show.
    window.SetWidth(window.Width() + 90);
    ExpectOrder();
    window.SetWidth(window.Width() - 90);
    Click("btnInfo");
    EXPECT_EQ(form->frameSize(), narrow + QSize(2775 / 15, 0));
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    // As with a much thicker frame: the grid must be seen whole.
    window.SetHeight(window.Height() - 1200);
    EXPECT_EQ(Widget("lblField(81)").visibleRegion().boundingRect().height(), 40);
}

// The fixture expects that each box keeps off the fields and lies on the screen.
TEST_F(WindowTest, ABoxOpensWhereTheScreenHasRoom) {
    for (const QPoint place : {QPoint(20, 0), QPoint(210, 0), QPoint(120, 300)}) {
        form->move(place);
        Click("lblDeadEnd");
    }
    // In the corner where it covers least, here of a second screen.
    const QRect screen(1920, 100, 1000, 800);
    EXPECT_EQ(qt::PlaceBeside({1940, 120, 960, 760}, {100, 50}, screen), QPoint(2820, 100));
    EXPECT_EQ(qt::PlaceBeside({1940, 120, 960, 700}, {100, 50}, screen), QPoint(2370, 820));
    // GNOME would fix a box with a parent over the fields.
    for (const char* const desktop : {"ubuntu:GNOME", "KDE"}) {
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        Meanwhile([&] {
            const QWindow& box = *QApplication::activeModalWidget()->windowHandle();
            EXPECT_EQ(box.transientParent() == nullptr, desktop != std::string("KDE"));
        });
        Click("lblDeadEnd");
    }
    qunsetenv("XDG_CURRENT_DESKTOP");
}

// That of Qt's frame on GNOME is 10 pixels wide.
TEST_F(WindowTest, AShadowIsNoPartOfTheFrame) {
    EXPECT_EQ(qt::WithoutShadow({11, 49, 11, 11}), QMargins(1, 39, 1, 1));
    EXPECT_EQ(qt::WithoutShadow({3, 30, 3, 3}), QMargins(3, 30, 3, 3));
}

TEST_F(WindowTest, FileNamesThatAreTypedToOpen) {
    Click("mnuFileImportCSV", folder + "missing.csv");
    EXPECT_EQ(window.lblFile.Caption(), "");
    qputenv("HOME", folder.c_str());
    QDir(folder.c_str()).mkdir("f");
    Write("f/a.csv", "Index;Value;Locked|1;5;1");
    Write("plain", "Index;Value;Locked|2;5;1");
    // An extension is added to a name without one. The list of the dialog, which opens in the
    // folder of the last file, has other files selected.
    const std::pair<std::string, const char*> files[] = {{folder + "f/a.csv", "1;5;1"},
                                                         {folder + "plain", "2;5;1"},
                                                         {folder + "f/a", "1;5;1"},
                                                         {"~/f/a.csv", "1;5;1"}};
    for (const auto& [typed, shown] : files) {
        Load("");
        Click("mnuFileImportCSV", typed);
        EXPECT_EQ(Grid(), shown) << typed;
    }
}

TEST_F(WindowTest, FileNamesThatAreTypedToSave) {
    Write("plain", "mine");
    for (const char* const name : {"no/", "no/new.csv"})
        TELLS(Click("mnuFileExportCSV", folder + name),
              "Export File Box(Export File|no\nThis folder does not exist.|-)");
    // At most 255 bytes, with the extension.
    TELLS(Click("mnuFileExportCSV", folder + QString(126, u'ä').toStdString()),
          "Export File Box(Export File|This file name is too long.|-)");
    for (const std::string name : {"plain", " Rätsel für \"Größe\"' 数独 "}) {
        Click("mnuFileExportCSV", folder + name);
        EXPECT_EQ(Read(name + ".csv"), "Index;Value;Locked") << name;
    }
    // A name, in the folder of the file before, and not the home of a user.
    Import("");
    Click("mnuFileExportCSV", "~new.csv");
    EXPECT_EQ(Read("~new.csv"), "Index;Value;Locked");
    EXPECT_EQ(Read("plain"), "mine");
}

TEST_F(WindowTest, ADialogOpensWhereTheFileIsEntersFoldersAndChangesNoFile) {
    Import("1;5;1");
    QDir(folder.c_str()).mkdir("f");
    const auto look = [&] {
        QFileDialog& dialog = Dialog();
        const QString opened = dialog.directory().path();
        EXPECT_EQ(opened.toStdString() + "/", folder);
        EXPECT_EQ(dialog.nameFilters().join("; "),
                  "CSV Dokumente (*.csv) (*.csv); Alle Dateien (*.*) (*)");
        const std::pair<const char*, const char*> views[] = {{"listModeButton", "listView"},
                                                             {"detailModeButton", "treeView"}};
        for (const auto& [button, name] : views) {
            dialog.findChild<QToolButton*>(button)->click();
            auto& list = *dialog.findChild<QAbstractItemView*>(name);
            const QPoint first(20, 9);
            EXPECT_TRUE(QTest::qWaitFor([&] { return list.indexAt(first).data() == "f"; }));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
            Key("Delete");
            Key("F2");
            EXPECT_FALSE(list.findChild<QLineEdit*>() || list.dragEnabled()) << name;
        }
        for (const char* const action : {"qt_delete_action", "qt_rename_action"})
            EXPECT_FALSE(dialog.findChild<QAction*>(action)->isVisible());
        // Opens the folder that is selected.
        ClickAt(*dialog.findChild<QPushButton*>(), {5, 5});
        EXPECT_EQ(dialog.directory().path(), opened + "/f");
        auto& name = *dialog.findChild<QLineEdit*>("fileNameEdit");
        name.setFocus();
        Down(1000, "7");
        Repeat(1600, "7");
        EXPECT_EQ(name.text(), "77");
        name.setText("..");
        Key("Return");
        EXPECT_EQ(dialog.directory().path() + name.text(), opened);
        // ESC might only close a list of names.
        dialog.reject();
    };
    for (const char* const command : {"mnuFileExportCSV", "mnuFileImportCSV"}) {
        Meanwhile(look);
        Click(command);
    }
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).isEmpty());
}

// The fixture expects it only while the rotor runs and no box is open.
TEST_F(WindowTest, TheHourglassComesBackAfterTheLastBox) {
    window.ctlRotor1.SetRunning(true);
    Meanwhile([&] { Click("mnuAbout"); });
    Click("lblDeadEnd");
    window.ctlRotor1.SetRunning(false);
}

TEST_F(WindowTest, AReturnRepaintsUnlessFromAnOwnBox) {
    QTest::qWait(200); // until the start is over
    form->findChild<QAction*>("mnuAbout")->trigger();
    // No window manager makes it active again.
    EXPECT_TRUE(QTest::qWaitFor([&] { return form->isActiveWindow(); }));
    Meanwhile([&] { Load("81;3;0"); });
    Click("lblDeadEnd");
    EXPECT_EQ(window.lblField(81).Caption(), "");
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Activate();
    EXPECT_EQ(window.lblField(81).Caption(), "3");
}

TEST_F(WindowTest, AScreenReaderMayPressALabelThatCanBeClicked) {
    TellClicks();
    const auto actions = [&](const char* label) {
        return QAccessible::queryAccessibleInterface(&Widget(label))->actionInterface();
    };
    for (const char* const label : {"lblField(2)", "lblDeadEnd"})
        TELLS(actions(label)->doAction(actions(label)->actionNames().value(0)), label);
    EXPECT_FALSE(actions("lblWinner")->actionNames().contains("Press"));
}

TEST_F(WindowTest, TheTimeOfAFileIsThatOfTheUser) {
    qputenv("TZ", "XYZ-5:30");
    // time() can be some milliseconds behind Qt's own clock, so both sides ask time().
    const auto clock = [] {
        return QDateTime::fromSecsSinceEpoch(std::time(nullptr)).toString("yyyyMMdd HHmmss");
    };
    const std::string before = clock().toStdString();
    const std::string stamp = DateTimeStamp(platform.Now());
    EXPECT_TRUE(before <= stamp && stamp <= clock().toStdString()) << before << ", " << stamp;
    qunsetenv("TZ");
}

TEST_F(WindowTest, AFieldCanBeReadInEveryColourAndTheme) {
    At(1).SetValue(8);
    for (const QColor theme : {QColor(239, 239, 239), QColor(49, 54, 59)}) {
        QApplication::setPalette(theme);
        const std::pair<Color, QColor> colors[] = {
            {WindowBackground, QApplication::palette().base().color()},
            {Red, Qt::red},
            {Green, Qt::green},
            {Yellow, Qt::yellow}};
        for (const auto& [color, seen] : colors) {
            window.lblField(1).SetBackColor(color);
            ExpectOrder();
            const QImage field = Picture("lblField(1)");
            EXPECT_EQ(field.pixelColor(7, 7), seen);
            const int border = field.pixelColor(0, 20).lightness();
            EXPECT_GT(std::abs(border - theme.lightness()), 80) << "the border is not seen";
            EXPECT_EQ(field.pixelColor(2, 20), Qt::white) << "no outer ring of the focus";
            EXPECT_EQ(field.pixelColor(4, 20), Qt::black) << "no inner ring";
            const bool isDark =
                color == Red || (color == WindowBackground && theme.lightness() < 99);
            const QColor digit = isDark ? Qt::white : Qt::black;
            EXPECT_TRUE(Has(field.copy(10, 6, 20, 28), digit)) << color;
            EXPECT_FALSE(Has(field.copy(6, 6, 4, 28), digit)) << "not in the middle";
        }
    }
    QApplication::setPalette({});
    At(1).SetLocked(true);
    EXPECT_TRUE(Has(Picture("lblField(1)"), Qt::red));
    EXPECT_EQ(Picture("fraNumPad").pixelColor(5, 5), Qt::red);
}

TEST_F(WindowTest, EachMoveOfASolveIsSeenBeforeTheNext) {
    FullBut({1, 11, 21, 31, 41, 51});
    Eye eye;
    QWidget* changed = nullptr;
    const auto look = [&](int field) {
        EXPECT_TRUE(!changed || eye.Painted.contains(changed)) << "when " << field << " changed";
        changed = &Widget("lblField(" + std::to_string(field) + ")");
        changed->installEventFilter(&eye);
        eye.Painted.clear();
    };
    const auto moves = game.Events.IndexChanged.Connect(look);
    const auto values = game.Events.StatusChanged.Connect(look);
    Click("btnSolve");
    EXPECT_TRUE(eye.Painted.contains(changed));
}

// The user and the timers wait until it has ended: a tick of the rotor would pump.
TEST_F(WindowTest, ASleepOnlyPaints) {
    platform.ReallySleeps = true;
    platform.TellsPumps = true;
    window.ctlRotor1.SetRunning(true);
    QWidget& field = Widget("lblField(40)");
    QCursor::setPos(0, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !field.underMouse(); }));
    Eye eye;
    field.installEventFilter(&eye);
    field.update();
    QCursor::setPos(field.mapToGlobal(QPoint(9, 9)));
    TELLS(platform.Sleep(100), "");
    EXPECT_TRUE(eye.Painted.contains(&field));
    EXPECT_FALSE(field.underMouse());
    platform.PumpEvents(Pump::Now);
    EXPECT_TRUE(field.underMouse());
    // Timers tick in a pump of what the sleep runs: that of this timer, and of the tick.
    QTimer::singleShot(0, form, [&] { platform.PumpEvents(Pump::Now); });
    TELLS(platform.Sleep(20), "(2)");
    // For the next window that opens there.
    QCursor::setPos(0, 0);
}

TEST_F(WindowTest, AllLinesOfTheInformationAreWholeInAHighFont) {
    window.lblInfo.SetFont({.Size = 8.25F});
    const QImage text = Picture("lblInfo");
    const auto row = [&](int y) { return text.copy(0, y, text.width(), 1); };
    // The rows of pixels below a line.
    int ends = 0;
    for (int y = 1; y < text.height(); ++y)
        ends += row(y - 1) != row(0) && row(y) == row(0) ? 1 : 0;
    // Ten texts; the free values need two lines.
    EXPECT_EQ(ends, 11);
}

TEST_F(WindowTest, APathThatIsTooLongIsShortenedAndHasATip) {
    QWidget& label = Widget("lblFile");
    const auto tip = [&] {
        QHelpEvent help(QEvent::ToolTip, {5, 5}, label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &help);
        return QToolTip::text().remove(QRegularExpression("<.*?>"));
    };
    // Narrower, as with a thick frame: the client ends before the label.
    window.SetWidth(window.Width() - 300);
    const int seen = label.parentWidget()->width() - label.x();
    QString path;
    while (label.fontMetrics().horizontalAdvance(path) <= seen)
        path += "a&/";
    window.lblFile.SetCaption(path.toStdString());
    Click("btnInfo");
    // The side column is shown, so there is room for the path.
    EXPECT_EQ(tip(), "");
    Click("btnInfo");
    EXPECT_EQ(tip(), path.toHtmlEscaped());
    const auto& lines = *label.findChild<QLabel*>();
    EXPECT_LT(lines.height(), 3 * lines.fontMetrics().height()) << "not in two lines";
    const QImage shown = Picture("lblFile");
    path = label.fontMetrics().elidedText(path, Qt::ElideMiddle, seen);
    window.lblFile.SetCaption(path.toStdString());
    EXPECT_EQ(Picture("lblFile"), shown);
}

// A view that sleeps, a question and a file dialog.
INSTANTIATE_TEST_SUITE_P(Commands, WindowTest,
                         testing::Values("mnuViewGroups", "mnuEditClearAll", "mnuFileImportCSV"));

TEST_P(WindowTest, TheProgramEndsSoonWhenClosedInACommand) {
    platform.ReallySleeps = true;
    QElapsedTimer sinceClose;
    const auto close = [&] {
        form->close();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        sinceClose.start();
    };
    Meanwhile(close);
    if (GetParam() == std::string("mnuFileImportCSV")) {
        // In front of the box of its dialog, which does not find the file.
        platform.Answers = {folder + "missing.csv"};
        Meanwhile([&] { Meanwhile(close); });
    }
    Load("1;5;0");
    QTimer::singleShot(1, form, [this] { Click(GetParam()); });
    QApplication::exec();
    // The view alone would sleep for 1000.
    EXPECT_LT(sinceClose.elapsed(), 900);
    // The question was not answered, and none is asked any more.
    EXPECT_EQ(Grid(), "1;5;0");
    TELLS(platform.ShowMessage({}), "");
    TELLS(window.CommonDialog1.ShowOpen(), "");
}

} // namespace tessarin
