// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// On the screen that the variable TARN_SCREEN names, `low` or `scaled`.
#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>

#include "tests/support/gui_display.h"
#include "tests/tour/album.h"
#include "tests/tour/display_test.h"
#include "tests/tour/fit_defects.h"
#include "ui/screen_fit.h"

namespace {

struct Screen {
    QSize size; ///< pixels
    int dots;   ///< per inch
    int titlePoints;
};

Screen chosenScreen() {
    const QByteArray name = qgetenv("TARN_SCREEN");
    // With a title bar that is higher than usual.
    if (name == "low")
        return {{1024, 600}, 96, 28};
    if (name == "scaled")
        return {{1366, 768}, 144, 9};
    qFatal("There is no screen %s", name.constData());
}

/// A window with a button in an area, which has room for half of it.
struct WindowWithArea {
    explicit WindowWithArea(Qt::ScrollBarPolicy bar) {
        window.resize(300, 200);
        area.setGeometry(0, 0, 300, 200);
        area.setVerticalScrollBarPolicy(bar);
        auto* content = new QWidget(&area);
        content->resize(100, 400);
        auto* button = new QPushButton(content);
        button->setObjectName(QStringLiteral("button"));
        button->setGeometry(0, 350, 50, 50);
        area.setWidget(content);
        window.show();
    }

    QWidget window;
    QScrollArea area{&window};
};

} // namespace

/// Every screen of the program opens within a small display, with its frame, and all that can be
/// operated can be reached.
class FitTest : public QObject {
    Q_OBJECT
private slots:
    void whatDoesNotFitIsFound() {
        QWidget window;
        const QSize screen = window.screen()->availableSize();
        window.resize(screen + QSize(100, 0));
        QPushButton button(&window);
        button.setObjectName(QStringLiteral("button"));
        button.setGeometry(window.width() - 30, 0, 60, 20);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QStringList defects = tour::fitDefectsOf(window);
        QCOMPARE(defects.size(), 2);
        QVERIFY(defects.first().startsWith(QStringLiteral("opens at ")));
        QCOMPARE(defects.last(), QStringLiteral("out of reach is button"));
    }

    void whatCanNotBeScrolledToIsFound() {
        QCOMPARE(tour::fitDefectsOf(WindowWithArea(Qt::ScrollBarAsNeeded).window), QStringList());
        QCOMPARE(tour::fitDefectsOf(WindowWithArea(Qt::ScrollBarAlwaysOff).window),
                 QStringList(QStringLiteral("out of reach is button")));
    }

    void everyScreenFits() {
        ui::keepWindowsOnScreen(*qApp);
        tour::Album album(QStringLiteral("Out of order."));
        album.alsoCheck(tour::fitDefectsOf);
        tour::checkAll(album);
    }
};

int main(int argc, char** argv) {
    const Screen screen = chosenScreen();
    support::Display display;
    support::WindowManager manager;
    if (!display.begin(screen.size, screen.dots) || !manager.begin(screen.titlePoints))
        qFatal("The display or the window manager doesn't start");
    return tour::runTest<FitTest>("xcb", argc, argv);
}

#include "fit_test.moc"
