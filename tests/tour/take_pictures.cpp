// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Takes a picture of every screen of the program, or writes the page that shows them all:
//   take_pictures <folder> [<translation file>]
//   take_pictures --index >docs/tour.md
// The looks are those of the display; see tools/pictures.
#include <cstdio>

#include <QApplication>
#include <QTranslator>

#include "resources/pictures.h"
#include "tests/tour/album.h"
#include "tests/tour/catalogue.h"
#include "tests/tour/stories.h"

namespace {

void writeIndex() {
    std::puts("# Every screen\n\n"
              "All windows, pages, dialogs and boxes, in English and in German. This page and its "
              "pictures are\nmade by `tools/pictures`; the balloons of the tray are the "
              "desktop's.\n");
    for (const tour::Chapter& chapter : tour::catalogue()) {
        std::printf("## %s\n\nIn [%s](../%s)\n\n", chapter.title, chapter.file, chapter.file);
        for (const tour::Screen& screen : chapter.screens)
            std::printf("**%s**\n\n| English | Deutsch |\n|---|---|\n"
                        "| ![](tour/en/%s.png) | ![](tour/de/%s.png) |\n\n",
                        screen.title, screen.name, screen.name);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && QLatin1String(argv[1]) == QLatin1String("--index")) {
        writeIndex();
        return 0;
    }
    QApplication application(argc, argv);
    resources::initPictures();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("Usage: take_pictures <folder> [<translation file>]\n"
                   "       take_pictures --index\n",
                   stderr);
        return 2;
    }
    QTranslator german;
    QString refusal = QStringLiteral("The storage server can't be reached.");
    if (arguments.size() > 2) {
        const QString none = QLatin1String("");
        if (!german.load(arguments.at(2), none, none, none))
            qFatal("Can't read %s", qPrintable(arguments.at(2)));
        QCoreApplication::installTranslator(&german);
        refusal = QStringLiteral("Der Speicherserver ist nicht erreichbar.");
    }
    // A cursor that blinks is on every other picture.
    QApplication::setCursorFlashTime(0);
    tour::Album album(refusal, QDir(arguments.at(1)));
    tour::takeAll(album);
    for (const QString& screen : album.missing())
        std::fprintf(stderr, "No picture of %s\n", qPrintable(screen));
    for (const QString& defect : album.defects())
        std::fprintf(stderr, "%s\n", qPrintable(defect));
    return album.missing().isEmpty() ? 0 : 1;
}
