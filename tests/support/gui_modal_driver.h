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

/// Plays the user in front of a test's modal dialogs. A test declares beforehand which dialogs will
/// open, in which order, and what to do with each:
///
///     ModalDriver modals;
///     modals.expect("login", isDialog<LoginCheck>, [](QWidget& dialog) { ... });
///     modals.expectErrorBox("Login Failed", "Wrong password.");
///     window.OnConnect();
///     QVERIFY(modals.done());
///
/// The same dialog may be expected again if the previous step left it open. An unexpected dialog
/// fails the test and is closed, and its picture is saved.
class ModalDriver {
public:
    using Test = std::function<bool(QWidget&)>;
    using Act = std::function<void(QWidget&)>;

    ModalDriver();
    ~ModalDriver();

    void expect(const QString& name, Test test, Act act);
    /// A critical box with this title and text, and Ok as its only button, which is pressed.
    void expectErrorBox(const QString& title, const QString& text);

    /// Whether all expected dialogs have opened and none is still open. Fails the test if not.
    bool done();

private:
    struct Step {
        QString name;
        Test test;
        Act act;
    };

    void lookSoon();
    void look();
    void meetAfterPostedEvents(QWidget& dialog);
    /// The open dialog, unless its step is running.
    QWidget* unmetDialog() const;
    void meet(QWidget& dialog);
    void refuse(QWidget& dialog);

    QObject context_; ///< its destruction stops the polling
    std::deque<Step> steps_;
    bool meeting_ = false;                ///< once the posted events are handled
    std::vector<QPointer<QWidget>> busy_; ///< dialogs whose step is running
};

template <class Dialog>
bool isDialog(QWidget& widget) {
    return qobject_cast<Dialog*>(&widget) != nullptr;
}

/// The only descendant of that class and name. Aborts the test program without a match.
template <class Widget>
Widget& child(QObject& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (!found)
        qFatal("There is no %s in %s", name, parent.metaObject()->className());
    return *found;
}

/// Saves a picture of the widget in the folder "gui-failures" and returns its path.
QString savePicture(QWidget& widget, const QString& name);

} // namespace support
