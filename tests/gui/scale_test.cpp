// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The scale of the program on displays of different sizes and densities. Each is looked at in a
// process of its own, since Qt reads it once.
#include <cstdio>

#include <QApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "app/even_scale.h"
#include "app/start_up.h"
#include "tests/support/gui_display.h"
#include "ui/screen_fit.h"

namespace {

constexpr char reportArgument[] = "--report-scale";

int reportScale(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    std::printf("%.4f", application.devicePixelRatio());
    return 0;
}

/// The program, which finds no agent.
class Program : public support::Helper {
public:
    explicit Program(const QString& folder) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder);
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TARN_PORT_REDIRECT));
        environment.insert(QStringLiteral("TARN_TEST_AGENT_PORT"), QStringLiteral("0"));
        setProcessEnvironment(environment);
        setWorkingDirectory(folder);
    }
};

/// The size of the visible window with that title; empty without such a window.
QSize sizeOfWindow(const QString& title) {
    QProcess search;
    search.start(QStringLiteral("xdotool"),
                 {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                  QStringLiteral("--name"), QStringLiteral("^%1$").arg(title),
                  QStringLiteral("getwindowgeometry"), QStringLiteral("--shell")});
    if (!search.waitForFinished())
        return {};
    const QString output = QString::fromLocal8Bit(search.readAllStandardOutput());
    static const QRegularExpression geometry(QStringLiteral("WIDTH=(\\d+)\nHEIGHT=(\\d+)"));
    const auto match = geometry.match(output);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

} // namespace

class ScaleTest : public QObject {
    Q_OBJECT
private slots:
    void isThatOfTheDisplay_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("dots");
        QTest::addColumn<QByteArray>("scale");
        QTest::newRow("a notebook") << QSize(1366, 768) << 96 << QByteArray("1.0000");
        QTest::newRow("423 mm") << QSize(1600, 1000) << 96 << QByteArray("1.0000");
        QTest::newRow("100 dots per inch") << QSize(1280, 800) << 100 << QByteArray("1.0000");
        QTest::newRow("125 %") << QSize(1600, 1000) << 120 << QByteArray("1.2500");
        QTest::newRow("150 %") << QSize(1366, 768) << 144 << QByteArray("1.5000");
        QTest::newRow("175 %") << QSize(1600, 1000) << 168 << QByteArray("1.7500");
        QTest::newRow("200 %") << QSize(2560, 1440) << 192 << QByteArray("2.0000");
    }
    void isThatOfTheDisplay() {
        QFETCH(QSize, size);
        QFETCH(int, dots);
        QFETCH(QByteArray, scale);
        support::Display display;
        QVERIFY(display.begin(size, dots));
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(),
                      {QString::fromLatin1(reportArgument)});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.readAllStandardOutput(), scale);
    }

    void theWindowOpensWithinASmallScreen() {
        const QSize screen(1024, 600);
        support::Display display;
        QVERIFY(display.begin(screen, 96));
        const QTemporaryDir folder;
        Program program(folder.path());
        QVERIFY(program.launch(QStringLiteral(TARN_PROGRAM), {}));
        QSize size;
        QTRY_VERIFY_WITH_TIMEOUT((size = sizeOfWindow(QStringLiteral("Ostrand Backup"))).isValid(),
                                 20'000);
        const QSize room = ui::largestWindow({{}, screen});
        QVERIFY(size.width() <= room.width() && size.height() <= room.height());
    }

    void isEvenIfItIsNearly() {
        QCOMPARE(app::evenScale(1.0008), 1.0);
        QCOMPARE(app::evenScale(0.9996), 1.0);
        QCOMPARE(app::evenScale(1.04), 1.0);
        QCOMPARE(app::evenScale(1.2602), 1.25);
        QCOMPARE(app::evenScale(1.1), 1.1);
        QCOMPARE(app::evenScale(1.9), 1.9);
    }
};

int main(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], reportArgument) == 0)
        return reportScale(argc, argv);
    const QCoreApplication application(argc, argv);
    ScaleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "scale_test.moc"
