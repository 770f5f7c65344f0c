// Activation, and the end of the program at awkward moments.
#include "QtFixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace tessarin {
namespace {

class LifeCycleTest : public QtFixture {
protected:
    // Runs the program: the user does something, and closes the window as soon as `moment` has
    // come. The program must end soon after, every handler with it.
    void ExpectPromptEnd(std::function<void()> doSomething, std::function<bool()> moment) {
        platform.ReallySleeps = true;
        bool ended = false;
        QElapsedTimer sinceClose;
        const auto closeInTime = [&] {
            if (!sinceClose.isValid() && moment() && form->close()) sinceClose.start();
        };
        platform.AtPump = closeInTime;
        QTimer boxes; // while one is open, nothing is pumped
        QObject::connect(&boxes, &QTimer::timeout, closeInTime);
        boxes.start(1);
        QTimer::singleShot(1, form, [&] {
            doSomething();
            ended = true;
            if (!sinceClose.isValid()) QApplication::exit();
        });
        QApplication::exec();
        platform.AtPump = nullptr;
        EXPECT_TRUE(ended);
        ASSERT_TRUE(sinceClose.isValid());
        EXPECT_LT(sinceClose.elapsed(), 1000);
        EXPECT_FALSE(form->isVisible());
    }
    static bool BoxIsOpen() { return QApplication::activeModalWidget() != nullptr; }
};

TEST_F(LifeCycleTest, ReturnFromElsewhereIsAnActivationButNotFromAnOwnBox) {
    const auto activations = [this] { return std::ranges::count(platform.Styles, 0x40000); };
    EXPECT_EQ(activations(), 1);
    Answer(QMessageBox::Ok);
    ASSERT_TRUE(Menu("mnuAbout"));
    Activate();
    EXPECT_EQ(activations(), 1);

    window.lblField(81).SetCaption("?");
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_EQ(activations(), 2);
    EXPECT_EQ(window.lblField(81).Caption(), "") << "it is painted anew";
    EXPECT_EQ(form->windowHandle()->type(), Qt::Window);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(LifeCycleTest, ClosedWhileGroupsAreShown) {
    ExpectPromptEnd([&] { Menu("mnuViewGroups"); },
                    [&] { return window.lblField(1).BackColor() == 0xFFFF; });
}

TEST_F(LifeCycleTest, ClosedWhileAQuestionIsOpen) {
    At(1).SetValue(5);
    Unexpected = [](QDialog&) {};
    ExpectPromptEnd([&] { Menu("mnuEditClearAll"); }, BoxIsOpen);
    EXPECT_EQ(At(1).Value(), 5) << "which was not answered";
}

TEST_F(LifeCycleTest, ClosedWhileAFileDialogIsOpen) {
    Unexpected = [](QDialog&) {};
    ExpectPromptEnd([&] { Menu("mnuFileImportCSV"); }, BoxIsOpen);
    EXPECT_EQ(window.lblFile.Caption(), "");
}

} // namespace
} // namespace tessarin
