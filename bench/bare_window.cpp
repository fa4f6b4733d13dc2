// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The least that a program with a Qt window of the client's kind does: a menu, a line of text, and
// nothing else. Without any text it wouldn't even load a font. The reference for the start of the
// client.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
    // As in the client: Qt neither looks for OpenGL nor asks the desktop whether it shows menu
    // bars.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    const QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Quit"));
    window.setCentralWidget(new QLabel(QStringLiteral("Ready"), &window));
    window.resize(1000, 600);
    window.show();
    return QApplication::exec();
}
