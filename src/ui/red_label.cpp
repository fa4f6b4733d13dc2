// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/red_label.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>

#include "ui/readable_colour.h"

namespace ui {

namespace {

const QString& redInText() {
    static const QString colour = QStringLiteral("#FF0000");
    return colour;
}

class RedReader : public QObject {
public:
    explicit RedReader(QLabel& label)
        : QObject(&label)
        , label_(label)
        , formSheet_(label.styleSheet()) {
        label.installEventFilter(this);
        apply();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // After a change of language, the label has its new text before this runs.
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LanguageChange)
            apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() {
        const QColor red = readable(Qt::red, QGuiApplication::palette(), QPalette::Window);
        const QString sheet = formSheet_.isEmpty() || red == QColor(Qt::red)
                                  ? formSheet_
                                  : QStringLiteral("color: %1;").arg(red.name());
        if (label_.styleSheet() != sheet)
            label_.setStyleSheet(sheet);
        QString text = label_.text();
        const QString shown = red == QColor(Qt::red) ? redInText() : red.name();
        text.replace(shown_, shown).replace(redInText(), shown);
        shown_ = shown;
        if (label_.text() != text)
            label_.setText(text);
    }

    QLabel& label_;
    QString formSheet_;
    QString shown_ = redInText(); ///< the colour in the text
};

} // namespace

void keepRedReadable(QLabel& label) {
    new RedReader(label);
}

} // namespace ui
