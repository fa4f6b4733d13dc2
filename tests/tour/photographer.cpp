// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/photographer.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTreeView>
#include <QWizard>

#include "app/login_check.h"
#include "session/text.h"
#include "simulator/world/world.h"

namespace tour {

namespace {

constexpr char rightPassword[] = "correct horse";

simulator::Options ahead(simulator::Options options,
                         const std::shared_ptr<std::atomic<simulator::Milliseconds>>& by) {
    options.user = "anna";
    options.password = rightPassword;
    options.clock = [by, clock = simulator::systemClock()] { return clock() + *by; };
    return options;
}

} // namespace

Photographer::Photographer(Album& album, simulator::Options options,
                           const std::function<void(simulator::World&)>& change)
    : album_(album)
    , passed_(std::make_shared<std::atomic<simulator::Milliseconds>>(0))
    , agent_(ahead(std::move(options), passed_)) {
    if (change)
        agent_.withWorld(change);
}

void Photographer::expectLogin() {
    expect<LoginCheck>([](LoginCheck& login) {
        type(login, "lineEditUserName", "anna");
        type(login, "lineEditPassword", rightPassword);
        click(login, "buttonLogin");
    });
}

void Photographer::logIn() {
    expectLogin();
    run("OnConnect");
}

void Photographer::letPass(std::chrono::seconds time) {
    *passed_ += std::chrono::milliseconds(time).count();
    window().refreshAll();
}

void Photographer::refuse(const char* method) {
    refuse(method, album_.refusal());
}

void Photographer::refuse(const char* method, const QString& text) {
    agent_.inject(method, simulator::Fault{session::toWire(text)});
}

void Photographer::expect(const char* screen) {
    expect<QDialog>([this, screen](QDialog& dialog) { take(dialog, screen); });
}

void Photographer::run(const char* slot) {
    if (!QMetaObject::invokeMethod(&window(), slot))
        qFatal("The main window has no slot %s", slot);
    end();
}

void Photographer::run(const char* slot, const char* screen) {
    expect(screen);
    run(slot);
}

void Photographer::end() {
    if (!modals_.done())
        qFatal("Not all of the dialogs came");
}

void click(QWidget& dialog, const char* button) {
    child<QAbstractButton>(dialog, button).click();
}

void type(QWidget& dialog, const char* field, const char* text) {
    child<QLineEdit>(dialog, field).setText(q(text));
}

void next(QWizard& wizard) {
    const int page = wizard.currentId();
    wizard.next();
    if (wizard.currentId() == page)
        qFatal("The wizard stays on page %d", page);
}

QModelIndex openFirstRows(QTreeView& tree, int levels) {
    QModelIndex index;
    for (int i = 0; i < levels; ++i) {
        index = tree.model()->index(0, 0, index);
        tree.expand(index);
    }
    tree.scrollToTop();
    return index;
}

void tick(QTreeView& tree, const QModelIndex& index) {
    if (!tree.model()->setData(index, Qt::Checked, Qt::CheckStateRole))
        qFatal("The row can't be ticked");
}

} // namespace tour
