// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// When the search line prepares a search, which must not wait for the first key.

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include "insight/log_search_bar.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"

namespace {

/// A log that counts its preparations.
class CountingLog final : public insight::SearchedLog {
public:
    CountingLog(QAbstractItemModel& model, int& preparations)
        : model_(model)
        , preparations_(preparations) {}

    void prepare() override { ++preparations_; }
    void setFilter(const insight::LogFilter&, const insight::SetNames&) override {}
    const QAbstractItemModel& model() const override { return model_; }
    int shownRows() const override { return model_.rowCount(); }
    int allRows() const override { return model_.rowCount(); }
    std::size_t recordOf(int row) const override { return static_cast<std::size_t>(row); }
    int rowOf(std::size_t record) const override { return static_cast<int>(record); }
    QByteArray csv() const override { return {}; }

private:
    QAbstractItemModel& model_;
    int& preparations_;
};

} // namespace

class LogSearchBarTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // Only Qt's own file dialog has widgets that a test can use.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void aSearchIsPreparedWhenTheLineGetsTheFocus();
    void andAfterEachRefreshWhileItHasTheFocus();
    void theNumberOfRowsHasASingular();
    void theExportDialogIsTranslated();
    void theExportStartsInTheFolderForDocuments();
    void aHiddenBarLooksForNoPicture();
};

namespace {

struct Window : QWidget {
    Window()
        : model(3, 1)
        , table(new QTableView)
        , bar(new LogSearchBar) {
        auto* row = new QHBoxLayout(this);
        row->addWidget(table);
        row->addWidget(bar);
        table->setModel(&model);
        bar->attach(*table, std::make_unique<CountingLog>(model, preparations));
        show();
        activateWindow();
        table->setFocus();
    }

    QStandardItemModel model;
    int preparations = 0;
    QTableView* table;
    LogSearchBar* bar;
};

} // namespace

void LogSearchBarTest::aSearchIsPreparedWhenTheLineGetsTheFocus() {
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(window.preparations, 0);
    support::child<QLineEdit>(*window.bar, "editSearch").setFocus();
    QCOMPARE(window.preparations, 1);
}

void LogSearchBarTest::andAfterEachRefreshWhileItHasTheFocus() {
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.model.setData(window.model.index(0, 0), QStringLiteral("away"));
    QCoreApplication::processEvents();
    QCOMPARE(window.preparations, 0);
    support::child<QLineEdit>(*window.bar, "editSearch").setFocus();
    window.model.setData(window.model.index(0, 0), QStringLiteral("new"));
    QTRY_COMPARE(window.preparations, 2);
}

void LogSearchBarTest::theNumberOfRowsHasASingular() {
    Window window;
    const auto& count = support::child<QLabel>(*window.bar, "labelCount");
    QCOMPARE(count.text(), QStringLiteral("3 rows"));
    window.model.removeRows(1, 2);
    QCOMPARE(count.text(), QStringLiteral("1 row"));
}

void LogSearchBarTest::theExportDialogIsTranslated() {
    /// Marks the texts of the search bar.
    struct Marking : QTranslator {
        QString translate(const char* context, const char* text, const char*, int) const override {
            return QLatin1String(context) == QLatin1String("LogSearchBar")
                       ? QLatin1Char('*') + QString::fromUtf8(text)
                       : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Marking marking;
    QVERIFY(QCoreApplication::installTranslator(&marking));
    Window window;
    support::ModalDriver modals;
    modals.expect(QStringLiteral("file"), support::isDialog<QFileDialog>, [](QWidget& dialog) {
        const auto& box = support::child<QDialogButtonBox>(dialog, "buttonBox");
        QCOMPARE(box.button(QDialogButtonBox::Save)->text(), QStringLiteral("*&Save"));
        static_cast<QDialog&>(dialog).reject();
    });
    support::child<QPushButton>(*window.bar, "buttonExport").click();
    QVERIFY(modals.done());
}

void LogSearchBarTest::theExportStartsInTheFolderForDocuments() {
    const QTemporaryDir home;
    const auto putBack = qScopeGuard([before = qgetenv("HOME")] { qputenv("HOME", before); });
    qputenv("HOME", QFile::encodeName(home.path()));
    const auto startOfExport = [] {
        Window window;
        QString folder;
        support::ModalDriver modals;
        modals.expect(QStringLiteral("file"), support::isDialog<QFileDialog>, [&](QWidget& dialog) {
            auto& files = static_cast<QFileDialog&>(dialog);
            QVERIFY(!files.testOption(QFileDialog::DontUseNativeDialog));
            folder = files.directory().absolutePath();
            static_cast<QDialog&>(dialog).reject();
        });
        support::child<QPushButton>(*window.bar, "buttonExport").click();
        return folder;
    };
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(documents).isDir()) {
        QCOMPARE(startOfExport(), QDir::homePath());
        QVERIFY(QDir().mkpath(documents));
    }
    QCOMPARE(startOfExport(), documents);
}

/// The search in the desktop's themes would delay the start of the program.
void LogSearchBarTest::aHiddenBarLooksForNoPicture() {
    LogSearchBar bar;
    const auto& line = support::child<QLineEdit>(bar, "editSearch");
    QVERIFY(!line.isClearButtonEnabled());
    bar.show();
    QVERIFY(line.isClearButtonEnabled());
}

QTEST_MAIN(LogSearchBarTest)
#include "log_search_bar_test.moc"
