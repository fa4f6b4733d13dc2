// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/end_to_end/player.h"

#include <cstdio>
#include <cstdlib>

#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QWidget>

namespace end_to_end {

namespace {

constexpr int timeBetweenLooks = 200;
constexpr int timeForAStep = 120'000;
constexpr int statusOfAFailure = 3;

[[noreturn]] void fail(const QString& text) {
    std::fprintf(stderr, "story: %s\n", qPrintable(text));
    std::fflush(stderr);
    // Skips the program's clean-up, so that its last calls are those of the story.
    std::_Exit(statusOfAFailure);
}

} // namespace

Player::Player(QString pictures)
    : pictures_(std::move(pictures)) {
    connect(&timer_, &QTimer::timeout, this, &Player::tick);
    timer_.setInterval(timeBetweenLooks);
}

void Player::then(const QString& name, Step step) {
    steps_.push_back({name, std::move(step)});
}

void Player::play() {
    deadline_.setRemainingTime(timeForAStep);
    timer_.start();
}

void Player::tick() {
    if (steps_.empty())
        return;
    if (!steps_.front().step()) {
        if (deadline_.hasExpired())
            fail(QStringLiteral("timed out waiting for ") + steps_.front().name);
        return;
    }
    steps_.pop_front();
    deadline_.setRemainingTime(timeForAStep);
}

void Player::take(QWidget& widget, const QString& name) const {
    if (pictures_.isEmpty())
        return;
    const QString file = QDir(pictures_).filePath(name + QStringLiteral(".png"));
    if (!widget.grab().save(file))
        fail(file + QStringLiteral(" can't be written"));
}

void Player::note(const QString& line) const {
    if (pictures_.isEmpty())
        return;
    QFile file(QDir(pictures_).filePath(QStringLiteral("notes.txt")));
    if (!file.open(QIODevice::Append) || file.write(line.toUtf8() + '\n') < 0)
        fail(file.fileName() + QStringLiteral(" can't be written"));
}

} // namespace end_to_end
