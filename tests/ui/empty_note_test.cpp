// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QListView>
#include <QStringListModel>
#include <QtTest>

#include "ui/empty_note.h"

class EmptyNoteTest : public QObject {
    Q_OBJECT
private slots:
    void standsInAViewWithoutRows() {
        QListView view;
        QStringListModel model;
        view.setModel(&model);
        const auto& note =
            *new ui::EmptyNote(view, [] { return QStringLiteral("Nothing matches."); });
        view.show();
        QTRY_VERIFY(note.isVisible());
        QCOMPARE(note.text(), QStringLiteral("Nothing matches."));
        QCOMPARE(note.geometry(), view.viewport()->rect());
        model.setStringList({QStringLiteral("a row")});
        QTRY_VERIFY(!note.isVisible());
        model.setStringList({});
        QTRY_VERIFY(note.isVisible());
        view.resize(view.width() + 50, view.height() + 50);
        QTRY_COMPARE(note.geometry(), view.viewport()->rect());
    }

    void saysNothingWithoutAText() {
        QListView view;
        QStringListModel model;
        view.setModel(&model);
        QString text;
        const auto& note = *new ui::EmptyNote(view, [&text] { return text; });
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCoreApplication::processEvents();
        QVERIFY(!note.isVisible());
        text = QStringLiteral("Nothing matches.");
        view.viewport()->update();
        QTRY_VERIFY(note.isVisible());
    }
};

QTEST_MAIN(EmptyNoteTest)
#include "empty_note_test.moc"
