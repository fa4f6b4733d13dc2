// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QAction>
#include <QDateTimeEdit>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include <zip.h>

#include "app/simple_gui_main_window.h"
#include "resources/pictures.h"
#include "session/process_values.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"

using support::child;

namespace {

/// The object names of the entries of a menu or tool bar, with "-" for a separator. Entries without
/// a name are fillers.
QStringList entries(const QWidget& bar) {
    QStringList names;
    for (const QAction* action : bar.actions())
        if (action->isSeparator())
            names << QStringLiteral("-");
        else if (!action->objectName().isEmpty())
            names << action->objectName();
    return names;
}

QImage largest(const QIcon& icon) {
    return icon.pixmap(1024, 1024).toImage();
}

/// Puts a string table into the branding archive of the current directory.
void brand(const QByteArray& strings) {
    zip_t* archive = zip_open("resources.zip", ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    zip_file_add(archive, "strtable.txt",
                 zip_source_buffer(archive, strings.constData(),
                                   static_cast<zip_uint64_t>(strings.size()), 0),
                 ZIP_FL_OVERWRITE);
    if (zip_close(archive) != 0)
        qFatal("The archive can't be written: %s", zip_strerror(archive));
}

QStringList words(const char* text) {
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

/// Content and object names of the main window without a session.
class MainWindowFormTest : public QObject {
    Q_OBJECT
public slots:
    void open(const QUrl& url) { opened_ << url.toString(); }

private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { window_ = std::make_unique<SimpleGUIMainWindow>(); }
    void cleanup() { window_.reset(); }

    void hasItsActions_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("icon");
        action("actionLogin", "&Connect", ":/icons/connect");
        action("actionLogout", "&Disconnect", ":/icons/disconnect");
        action("actionQuit", "&Quit", ":/icons/quit");
        action("actionNew_Backup_Set", "&New Set", ":/icons/toolbar_new_set.png");
        action("actionBackup_Now", "&Backup", ":/icons/toolbar_backup.png");
        action("actionRestore", "&Restore", ":/icons/toolbar_restore.png");
        action("actionSynchronize", "&Synchronize", ":/icons/activity_sync.png");
        action("actionDeleteFromOnline", "&Delete", ":/button/delete");
        action("actionAdmin", "&Admin", ":/icons/config");
        action("actionLogo", "Logo", ":/icons/norvel_logo");
        action("action_Recovery", "&Recovery", ":/icons/recovery");
        action("action_About", "&About Tarn-Mobile User", ":/icons/about.png");
        action("actionRegister", "R&e-Register", ":/tree/selected_file");
        action("actionRegistration_Info", "Registration &Info", ":/icons/reg_info.png");
        action("actionHelp", "&Help", ":/icons/help.png");
        action("actionLDAP_Account", "LDA&P User Account", "");
        action("actionTFASettings", "&Two Factor Authentication", ":/icons/icon_tfa.png");
    }
    void hasItsActions() {
        QFETCH(QString, label);
        QFETCH(QString, icon);
        const auto& found = child<QAction>(*window_, QTest::currentDataTag());
        QCOMPARE(found.text(), label);
        QCOMPARE(found.icon().isNull(), icon.isEmpty());
        if (!icon.isEmpty())
            QCOMPARE(largest(found.icon()), largest(QIcon(icon)));
        QVERIFY(found.shortcut().isEmpty());
    }

    void showsTheBranding() {
        const auto& logo = child<QAction>(*window_, "actionLogo");
        QCOMPARE(logo.toolTip(), QStringLiteral("Norvel Inc"));
        QCOMPARE(largest(window_->windowIcon()),
                 largest(QIcon(QStringLiteral(":/icons/tarn_mobile_icon"))));

        const QString before = QDir::currentPath();
        const QTemporaryDir branded;
        QVERIFY(QDir::setCurrent(branded.path()));
        brand("description : Our Company\nhomepageurl: https://ours.example/\n");
        window_ = std::make_unique<SimpleGUIMainWindow>();
        QVERIFY(QDir::setCurrent(before));
        const auto& ours = child<QAction>(*window_, "actionLogo");
        QCOMPARE(ours.toolTip(), QStringLiteral("Our Company"));
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
        window_->on_actionLogo_triggered();
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QCOMPARE(opened_, QStringList{QStringLiteral("https://ours.example/")});
        QCOMPARE(largest(ours.icon()), largest(QIcon(QStringLiteral(":/icons/norvel_logo"))));
    }

    void hasItsMenus() {
        QStringList titles;
        for (const QAction* menu : window_->menuBar()->actions())
            titles << menu->text();
        QCOMPARE(titles, (QStringList{QStringLiteral("&Application"), QStringLiteral("&Backup Set"),
                                      QStringLiteral("&Configuration"), QStringLiteral("&View"),
                                      QStringLiteral("&Help")}));
        QCOMPARE(entries(child<QWidget>(*window_, "menu_Application")),
                 words("actionLogin actionLogout - actionQuit"));
        QCOMPARE(entries(child<QWidget>(*window_, "menu_Backup_Set")),
                 words("actionNew_Backup_Set actionBackup_Now actionRestore "
                       "actionDeleteFromOnline - actionSynchronize"));
        QCOMPARE(entries(child<QWidget>(*window_, "menu_Configuration")),
                 words("actionLDAP_Account actionAdmin action_Recovery actionRegister "
                       "actionRegistration_Info actionTFASettings"));
        QCOMPARE(entries(child<QWidget>(*window_, "menu_View")),
                 words("actionBackup_Health actionFind_File"));
        QCOMPARE(entries(child<QWidget>(*window_, "menu_Help")), words("actionHelp action_About"));
    }

    void hasItsToolBars() {
        window_->show();
        const auto& bar = child<QToolBar>(*window_, "toolBar");
        const auto& logo = child<QToolBar>(*window_, "toolBarLogo");
        QCOMPARE(bar.windowTitle(), QStringLiteral("Main Tool Bar"));
        QCOMPARE(entries(bar), words("actionNew_Backup_Set actionBackup_Now actionRestore "
                                     "actionDeleteFromOnline"));
        QCOMPARE(entries(logo), words("actionLogo"));
        QCOMPARE(bar.iconSize(), QSize(32, 32));
        QCOMPARE(logo.iconSize(), QSize(280, 50));
        QCOMPARE(bar.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QVERIFY(!bar.isFloatable());
        QVERIFY(!logo.isFloatable());
        QVERIFY(!logo.isMovable());
        // Side by side, the logo at the right end and no wider than necessary.
        QCOMPARE(bar.geometry().top(), logo.geometry().top());
        QVERIFY(logo.geometry().left() > bar.geometry().right());
        QCOMPARE(logo.geometry().right(), window_->rect().right());
        QVERIFY(bar.width() > window_->width() / 2);
    }

    void isLaidOutAsItShouldBe() {
        QCOMPARE(window_->geometry().center(),
                 QGuiApplication::primaryScreen()->availableGeometry().center());
        window_->show();
        const auto& upDown = child<QSplitter>(*window_, "splitter_2");
        const auto& leftRight = child<QSplitter>(*window_, "splitterSetView");
        auto& tabs = child<QTabWidget>(*window_, "tabWidget");
        QCOMPARE(upDown.orientation(), Qt::Vertical);
        QCOMPARE(leftRight.orientation(), Qt::Horizontal);
        QCOMPARE(upDown.widget(0), &leftRight);
        QCOMPARE(upDown.widget(1), &tabs);
        QCOMPARE(leftRight.widget(0), &child<QTableView>(*window_, "backupSetsView"));
        QCOMPARE(leftRight.widget(1), &child<QWidget>(*window_, "pageProperties"));
        QCOMPARE(tabs.tabText(0), QStringLiteral("Running Activities"));
        QCOMPARE(tabs.tabText(1), QStringLiteral("Activity Log"));
        for (const char* name : {"tableCurrentActivities", "buttonStop"})
            QVERIFY(tabs.widget(0)->isAncestorOf(&child<QWidget>(*window_, name)));
        for (const char* name : {"tableActivityLog", "labelDateTimeFrom", "dateTimeFrom",
                                 "labelDateTimeTo", "dateTimeTo", "buttonEventLog"})
            QVERIFY(tabs.widget(1)->isAncestorOf(&child<QWidget>(*window_, name)));
        QCOMPARE(window_->width(), 1000);
        const int margins = window_->width() - leftRight.width();
        // 650 to 350, less the handle between them.
        const int details = leftRight.sizes().at(1);
        QVERIFY(qAbs(details - 350) <= 20);
        // The list takes any extra width.
        window_->resize(window_->width() + 200, window_->height());
        QTRY_COMPARE(leftRight.width(), window_->width() - margins);
        QCOMPARE(leftRight.sizes().at(1), details);
    }

    void namesTheDetailsOfASet() {
        const char* const captions[][2] = {
            {"labLastBackup", "Last backup:"}, {"labFileGens", "Protected file generations:"},
            {"labSize", "Protected size:"},    {"labItems", "Protected items:"},
            {"labSchedule", "Schedule:"},      {"labRetention", "Retention:"},
        };
        for (const auto& [name, caption] : captions) {
            const auto& label = child<QLabel>(*window_, name);
            QCOMPARE(label.text(), QString::fromLatin1(caption));
            QCOMPARE(label.minimumHeight(), 22);
        }
        for (const char* name :
             {"valLastBackup", "valFileGens", "valSize", "valItems", "valSchedule", "valRetention"})
            QCOMPARE(child<QLabel>(*window_, name).text(), QString());
        const char* const buttons[][3] = {
            {"btnItems", "Edit backup set items", ":/button/items"},
            {"btnSchedule", "Create/Edit schedule", ":/button/schedule"},
            {"btnRetention", "Create/Edit retention rules", ":/button/retention"},
        };
        for (const auto& [name, tip, icon] : buttons) {
            const auto& button = child<QAbstractButton>(*window_, name);
            QCOMPARE(button.toolTip(), QString::fromLatin1(tip));
            QCOMPARE(button.size(), QSize(28, 28));
            support::compareIcon(*window_, name, icon);
        }
    }

    void showsYesterdayAndTodayInTheLog() {
        const auto& from = child<QDateTimeEdit>(*window_, "dateTimeFrom");
        const auto& to = child<QDateTimeEdit>(*window_, "dateTimeTo");
        QCOMPARE(from.dateTime(), QDateTime(QDate::currentDate().addDays(-1), QTime(0, 0)));
        QCOMPARE(to.dateTime(), QDateTime(QDate::currentDate(), QTime(23, 59, 59, 999)));
        for (const QDateTimeEdit* edit : {&from, &to}) {
            QVERIFY(edit->calendarPopup());
            QCOMPARE(edit->displayFormat(), QStringLiteral("yyyy-MM-dd HH:mm"));
        }
        QCOMPARE(child<QLabel>(*window_, "labelDateTimeFrom").text(), QStringLiteral("&From:"));
        QCOMPARE(child<QLabel>(*window_, "labelDateTimeTo").text(), QStringLiteral("&To:"));
        QCOMPARE(child<QLabel>(*window_, "labelDateTimeFrom").buddy(), &from);
        QCOMPARE(child<QLabel>(*window_, "labelDateTimeTo").buddy(), &to);
        QCOMPARE(child<QPushButton>(*window_, "buttonEventLog").text(), QStringLiteral("&Events"));
        QCOMPARE(child<QPushButton>(*window_, "buttonStop").text(), QStringLiteral("&Stop"));
        support::compareIcon(*window_, "buttonEventLog", ":/button/event_log");
        support::compareIcon(*window_, "buttonStop", ":/button/stop");
    }

    void namesEachWidgetThatTabReaches() {
        int checked = 0;
        for (QWidget* widget : window_->findChildren<QWidget*>()) {
            if (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() ||
                widget->objectName().startsWith(QLatin1String("qt_")))
                continue;
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY(accessible);
            const QString name = accessible->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty(), qPrintable(widget->objectName()));
            ++checked;
        }
        QVERIFY(checked >= 10);
    }

    void tabFollowsTheEye() {
        QStringList names;
        QWidget* widget = &child<QWidget>(*window_, "backupSetsView");
        do {
            if (!widget->objectName().isEmpty() &&
                !widget->objectName().startsWith(QLatin1String("qt_")) &&
                (widget->focusPolicy() & Qt::TabFocus) && !qobject_cast<QTabBar*>(widget->parent()))
                names << widget->objectName();
            widget = widget->nextInFocusChain();
        } while (widget->objectName() != QLatin1String("backupSetsView"));
        QCOMPARE(names,
                 words("backupSetsView buttonConnect btnItems btnSchedule btnRetention tabWidget "
                       "tableCurrentActivities buttonStop dateTimeFrom dateTimeTo buttonEventLog "
                       "editSearch comboSeverity buttonExport tableActivityLog "
                       "buttonStatusEvents healthField connectionField"));
    }

    void opensInTheTextsOfATranslation() {
        window_->setWindowTitle(QStringLiteral("Ostrand Backup - demo@there"));
        const support::Translation german(QStringLiteral("de"));
        QTRY_COMPARE(child<QAction>(*window_, "actionLogin").text(), QStringLiteral("&Verbinden"));
        QCOMPARE(window_->windowTitle(), QStringLiteral("Ostrand Backup - demo@there"));

        session::g_language = QStringLiteral("de");
        SimpleGUIMainWindow fresh;
        session::g_language.clear();
        QCOMPARE(child<QMenu>(fresh, "menu_Help").title(), QStringLiteral("&Hilfe"));
        QCOMPARE(fresh.windowTitle(), QStringLiteral("Ostrand Backup"));
        fresh.show();
        child<QLabel>(fresh, "valLastBackup")
            .setText(
                QLocale::system().toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
        const auto* details = child<QWidget>(fresh, "pageProperties").findChild<QScrollArea*>();
        QVERIFY(details);
        QTRY_VERIFY(!details->horizontalScrollBar()->isVisible());
    }

private:
    static void action(const char* name, const char* label, const char* icon) {
        QTest::newRow(name) << QString::fromLatin1(label) << QString::fromLatin1(icon);
    }

    QStringList opened_;
    std::unique_ptr<SimpleGUIMainWindow> window_;
};

QTEST_MAIN(MainWindowFormTest)
#include "main_window_form_test.moc"
