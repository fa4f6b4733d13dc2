// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "app/backup_set_view_item.h"
#include "resources/pictures.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"
#include "ui/elided_label.h"

using support::child;

namespace {

constexpr int narrow = 500;

void letLayoutSettle() {
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

} // namespace

/// The window in half of a small screen.
class MainWindowNarrowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void theNamesOfCardsAreRead_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("en") << QString();
        for (const QString& language : support::languages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void theNamesOfCardsAreRead() {
        QFETCH(QString, language);
        const auto texts =
            language.isEmpty() ? nullptr : std::make_unique<support::Translation>(language);
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        driver.logIn(agent);
        driver.sets().selectRow(0);
        auto& tabs = child<QTabWidget>(driver.window(), "tabWidget");
        for (int tab = 0; tab < tabs.count(); ++tab) {
            tabs.setCurrentIndex(tab);
            driver.window().resize(narrow, 700);
            letLayoutSettle();
            QCOMPARE(driver.window().width(), narrow);
            checkCard(driver);
            checkLabels(driver.window());
        }
        for (const char* button : {"buttonEventLog", "buttonExport"}) {
            const auto& lastInRow = child<QPushButton>(driver.window(), button);
            QCOMPARE(lastInRow.visibleRegion().boundingRect(), lastInRow.rect());
        }
    }

    void theDetailsComeBackToTheSide() {
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        driver.logIn(agent);
        auto& splitter = child<QSplitter>(driver.window(), "splitterSetView");
        const QSize before = driver.window().size();
        const QList<int> sizes = splitter.sizes();
        QCOMPARE(splitter.orientation(), Qt::Horizontal);
        driver.window().resize(narrow, 700);
        letLayoutSettle();
        QCOMPARE(splitter.orientation(), Qt::Vertical);
        driver.window().resize(before);
        letLayoutSettle();
        QCOMPARE(splitter.orientation(), Qt::Horizontal);
        QCOMPARE(splitter.sizes(), sizes);
    }

private:
    static void checkCard(support::MainWindowDriver& driver) {
        auto& name = child<QLabel>(driver.card(0), "labelSetName");
        QCOMPARE(name.text(), QStringLiteral("Documents"));
        QVERIFY2(name.sizeHint().width() <= name.width(),
                 qPrintable(QString::number(name.width())));
        // All of it is in the view.
        QCOMPARE(name.visibleRegion().boundingRect(), name.rect());
    }

    /// No label is cut, and none sticks out of the window.
    static void checkLabels(QWidget& window) {
        for (const auto* label : window.findChildren<QLabel*>()) {
            if (!label->isVisible() || qobject_cast<const ui::ElidedLabel*>(label))
                continue;
            QVERIFY2(label->minimumSizeHint().width() <= label->width(), qPrintable(label->text()));
            const QPoint end = label->mapTo(&window, label->rect().bottomRight());
            QVERIFY2(window.rect().contains(end), qPrintable(label->text()));
        }
    }
};

QTEST_MAIN(MainWindowNarrowTest)
#include "main_window_narrow_test.moc"
