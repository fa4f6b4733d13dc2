// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/wizards/source_page_driver.h"

#include <algorithm>

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>
#include <QWizard>

#include "api/client_connection.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/support/gui_click.h"
#include "ui/screen_fit.h"

namespace wizards_test {

using simulator::LoginKind;
using support::child;

namespace {

bool isRelease(const std::string& call) {
    constexpr std::string_view end = ".Release()";
    return call.size() > end.size() && call.compare(call.size() - end.size(), end.size(), end) == 0;
}

} // namespace

Lines join(const std::vector<Lines>& parts) {
    Lines all;
    for (const Lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Lines refreshOf(LoginKind kind, const std::string& user) {
    // The cast makes the second query for the classes.
    Lines calls{"DataSourceBrowser.getCurrentCredentials()", "BackupSetCredentials.types()",
                "BackupSetCredentials.types()"};
    if (kind == LoginKind::Windows)
        calls.push_back("Win32FS_Generic_BackupSetCredentials.getUserName()");
    else
        calls.push_back("UnixFS_Generic_BackupSetCredentials.getUserName()");
    if (kind == LoginKind::Ssh)
        for (const char* method : {"getSudoUser", "getSSHAccessType", "getSSHInterpreterPath"})
            calls.push_back(std::string("UnixFS_SSH_BackupSetCredentials.") + method + "()");
    calls.push_back("DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(" + user + "))");
    return calls;
}

Source::Source(LoginKind kind, simulator::Options options)
    : agent(std::move(options)) {
    agent.withWorld([kind](simulator::World& world) { world.network.local()->kind = kind; });
    session::connectToAgent(agent.address(), "demo", "demo", 1);
    agent.clearCallLog();
}

Lines Source::calls() const {
    Lines calls = agent.callTexts();
    calls.erase(std::remove_if(calls.begin(), calls.end(), isRelease), calls.end());
    return calls;
}

Lines Source::takeCalls() {
    Lines taken = calls();
    agent.clearCallLog();
    return taken;
}

boost::shared_ptr<hessiancln::BackupSet>
Source::set(const std::function<void(simulator::CredentialsState&)>& change) {
    std::int32_t id = 0;
    agent.withWorld([&](simulator::World& world) {
        simulator::BackupSetState& set = *world.sets().front();
        set.info.data_type = hessiancln::BackupDataType::FileSystem;
        set.source = "My Computer";
        set.credentials.kind = world.network.local()->kind;
        change(set.credentials);
        id = set.info.id;
    });
    return session::getConnection()->backup_set(id);
}

void Source::verifyAllReleased() const {
    const Lines held = agent.liveObjects();
    QVERIFY2(held.size() == 1, qPrintable(QString::number(held.size())));
    QCOMPARE(agent.violations(), Lines{});
}

PageDriver::PageDriver(const SelectDataSourcePage::AdministratorTest& isAdministrator)
    : wizard_(std::make_unique<QWizard>())
    , page_(new SelectDataSourcePage(isAdministrator, wizard_.get())) {
    wizard_->addPage(page_);
    wizard_->addPage(new QWizardPage(wizard_.get()));
}

void PageDriver::show() {
    ui::giveOneSize(*wizard_);
    wizard_->show();
    // A field that loses the focus counts as edited.
    wizard_->button(QWizard::CancelButton)->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(wizard_.get()));
    QVERIFY(wizard_->button(QWizard::CancelButton)->hasFocus());
}

PageDriver::~PageDriver() = default;

QString PageDriver::text(const char* edit) const {
    return child<QLineEdit>(*page_, edit).text();
}

bool PageDriver::isShown(const char* widget) const {
    return child<QWidget>(*page_, widget).isVisible();
}

bool PageDriver::isEnabled(const char* widget) const {
    return child<QWidget>(*page_, widget).isEnabled();
}

bool PageDriver::isChecked(const char* button) const {
    return child<QAbstractButton>(*page_, button).isChecked();
}

bool PageDriver::canGoNext() const {
    return wizard_->button(QWizard::NextButton)->isEnabled();
}

void PageDriver::click(const char* button) {
    support::clickBox(child<QAbstractButton>(*page_, button));
}

void PageDriver::pressNext() {
    QTest::mouseClick(wizard_->button(QWizard::NextButton), Qt::LeftButton);
}

void PageDriver::typeComputer(const QString& name) {
    auto& edit = child<QLineEdit>(*page_, "editComputerName");
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, name);
    QTest::keyClick(&edit, Qt::Key_Tab);
}

void PageDriver::leaveComputer() {
    auto& edit = child<QLineEdit>(*page_, "editComputerName");
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);
}

QStringList PageDriver::networkRows(const QModelIndex& parent) {
    const QAbstractItemModel* model = child<QTreeView>(*page_, "treeNetworkDiscovery").model();
    QStringList names;
    for (int row = 0; row < model->rowCount(parent); ++row)
        names << model->index(row, 0, parent).data().toString();
    return names;
}

void PageDriver::select(std::initializer_list<const char*> path) {
    auto& tree = child<QTreeView>(*page_, "treeNetworkDiscovery");
    QModelIndex index;
    for (const char* name : path) {
        if (tree.model()->canFetchMore(index))
            tree.model()->fetchMore(index);
        const int row = networkRows(index).indexOf(QString::fromUtf8(name));
        if (row < 0)
            qFatal("There is no %s in the network", name);
        if (index.isValid())
            tree.expand(index);
        index = tree.model()->index(row, 0, index);
    }
    tree.scrollTo(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(index).center());
}

void PageDriver::verifyNames() const {
    for (const QWidget* widget : page_->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus ||
            widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const QString text = widget->property("text").toString();
        QVERIFY2(!widget->accessibleName().isEmpty() ||
                     (!text.isEmpty() && !widget->inherits("QLineEdit")) ||
                     widget->inherits("QHeaderView") || widget->inherits("QScrollBar"),
                 qPrintable(widget->objectName()));
    }
}

void PageDriver::close() {
    wizard_.reset();
}

} // namespace wizards_test
