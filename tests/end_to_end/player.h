// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <functional>

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class QWidget;

namespace end_to_end {

/// Plays a user in an unmodified program: each step waits for what it needs, then acts. A step that
/// times out ends the program with status 3.
class Player : public QObject {
    Q_OBJECT
public:
    /// Returns true once the step is done.
    using Step = std::function<bool()>;

    explicit Player(QString pictures);

    void then(const QString& name, Step step);
    /// The first step runs in the event loop.
    void play();

    /// Saves a picture of the widget under that name.
    void take(QWidget& widget, const QString& name) const;

    /// Appends a line to notes.txt among the pictures.
    void note(const QString& line) const;

private:
    void tick();

    struct Named {
        QString name;
        Step step;
    };

    QString pictures_;
    std::deque<Named> steps_;
    QDeadlineTimer deadline_;
    QTimer timer_;
};

} // namespace end_to_end
