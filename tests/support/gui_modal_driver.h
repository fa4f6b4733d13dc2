// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

namespace support {

/// Plays the user in front of the modal dialogs of a test. A test says beforehand which ones will
/// come, in order, and what to do with each:
///
///     ModalDriver modals;
///     modals.expect("login", isDialog<LoginCheck>, [](QWidget& dialog) { ... });
///     modals.expectErrorBox("Login Failed", "Wrong password.");
///     window.OnConnect();
///     QVERIFY(modals.done());
///
/// What is expected may be the same dialog again, after the step before has left it open. A dialog
/// that nobody expects fails the test and is closed, and its picture is kept.
class ModalDriver {
public:
    using Test = std::function<bool(QWidget&)>;
    using Act = std::function<void(QWidget&)>;

    ModalDriver();
    ~ModalDriver();

    void expect(const QString& name, Test test, Act act);
    /// A critical box with this title and text, and no other button than Ok, which is pressed.
    void expectErrorBox(const QString& title, const QString& text);

    /// Whether everything that was expected has come, and nothing is open. Fails the test if not.
    bool done();

private:
    struct Step {
        QString name;
        Test test;
        Act act;
    };

    void lookSoon();
    void look();
    void meet(QWidget& dialog);
    void refuse(QWidget& dialog);

    QObject context_; ///< its end stops the looking
    std::deque<Step> steps_;
    std::vector<QPointer<QWidget>> busy_; ///< dialogs whose step is running
};

template <class Dialog>
bool isDialog(QWidget& widget) {
    return qobject_cast<Dialog*>(&widget) != nullptr;
}

/// The one descendant of that class and name. Ends the test program if there is none.
template <class Widget>
Widget& child(QObject& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (!found)
        qFatal("There is no %s in %s", name, parent.metaObject()->className());
    return *found;
}

/// Saves what a widget shows in the folder "gui-failures"; the path.
QString savePicture(QWidget& widget, const QString& name);

} // namespace support
