// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QtTest>

#include "tests/support/gui_screen_reader.h"
#include "ui/secret_field.h"

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// The texts that have a letter or a digit of what the field holds.
QStringList lettersIn(const QStringList& texts) {
    return texts.filter(QRegularExpression(q("[a-z0-9]")));
}

/// Shows a password field that has the focus.
void showFocused(QLineEdit& field) {
    field.setEchoMode(QLineEdit::Password);
    field.show();
    if (!QTest::qWaitForWindowActive(&field))
        qFatal("The field doesn't become active");
    field.setFocus();
}

QAccessible::UpdateHandler updateHandler() {
    const auto handler = QAccessible::installUpdateHandler(nullptr);
    QAccessible::installUpdateHandler(handler);
    return handler;
}

void editInEveryWay(QLineEdit& field) {
    QTest::keyClicks(&field, q("secret"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    QGuiApplication::clipboard()->setText(q("pasted"));
    field.paste();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_X);
    field.undo();
    field.clear();
}

} // namespace

class SecretFieldTest : public QObject {
    Q_OBJECT
private slots:
    void aPlainFieldIsHeard() {
        const support::ScreenReader reader;
        QLineEdit field;
        showFocused(field);
        editInEveryWay(field);
        QVERIFY(lettersIn(reader.heard()).size() > 5);
    }

    void whatIsTypedIsHeardMasked() {
        support::ScreenReader reader;
        ui::SecretField field;
        showFocused(field);
        QTest::keyClick(&field, Qt::Key_S);
        QCOMPARE(reader.heard(), QStringList{field.displayText()});
        editInEveryWay(field);
        QCOMPARE(lettersIn(reader.heard()), QStringList());
        QVERIFY(reader.heard().size() > 5);
    }

    void whatWasStoredIsNotHeardAsItGoes() {
        support::ScreenReader reader;
        ui::SecretField field;
        showFocused(field);
        field.setSecret("stored");
        QCOMPARE(lettersIn(reader.heard()), QStringList());
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_N);
        QCOMPARE(lettersIn(reader.heard()), QStringList());
        QCOMPARE(field.text(), q("n"));
        field.wipe();
        QCOMPARE(lettersIn(reader.heard()), QStringList());
    }

    void withoutAFieldNothingIsPassedOn() {
        const support::ScreenReader reader;
        const auto hears = updateHandler();
        {
            const ui::SecretField one;
            { const ui::SecretField other; }
            QVERIFY(updateHandler() != hears);
        }
        QVERIFY(updateHandler() == hears);
    }

    void whatFollowsAChangeIsHeard() {
        support::ScreenReader reader;
        ui::SecretField field;
        QLineEdit name;
        connect(&field, &QLineEdit::textChanged, &name, [&] { name.setText(q("n")); });
        showFocused(field);
        name.show();
        reader.forget();
        field.setSecret("stored");
        QVERIFY(reader.heard().contains(q("n")));
        QCOMPARE(reader.heard().filter(q("s")), QStringList());
    }

    void otherFieldsAreHeardAsBefore() {
        support::ScreenReader reader;
        const ui::SecretField secret;
        QLineEdit name;
        showFocused(name);
        name.setEchoMode(QLineEdit::Normal);
        reader.forget();
        QTest::keyClick(&name, Qt::Key_A);
        QCOMPARE(reader.heard(), QStringList{q("a")});
    }
};

QTEST_MAIN(SecretFieldTest)
#include "secret_field_test.moc"
