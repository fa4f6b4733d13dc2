// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/file_search.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "api/backup_set_data_view.h"
#include "session/text.h"

namespace insight {

namespace {

constexpr std::int64_t topLevel = -1;
/// No file system is deeper; an agent that reports more has a cycle.
constexpr std::uint16_t deepest = 1'024;
/// More than a user looks through. Each takes memory and a call.
constexpr std::size_t mostFound = 200'000;
/// This many failures in a row are due to a lost connection, not to folders.
constexpr int mostFailures = 50;

QRegularExpression wholeName(const QString& pattern) {
    // Only these two are special; the expression escapes the others with a backslash.
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QStringLiteral("\\*"), QStringLiteral(".*"));
    expression.replace(QStringLiteral("\\?"), QStringLiteral("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

} // namespace

NamePattern::NamePattern(const QString& text)
    : text_(text.trimmed())
    , isPattern_(text_.contains(QLatin1Char('*')) || text_.contains(QLatin1Char('?'))) {
    if (isPattern_)
        expression_ = wholeName(text_);
}

bool NamePattern::matches(const QString& name) const {
    return isPattern_ ? expression_.match(name).hasMatch()
                      : name.contains(text_, Qt::CaseInsensitive);
}

FileSearch::FileSearch(NamePattern pattern, std::vector<std::int32_t> sets, OpenView open)
    : pattern_(std::move(pattern))
    , sets_(sets.begin(), sets.end())
    , open_(std::move(open)) {}

bool FileSearch::isDone() const {
    return !view_ && sets_.empty();
}

void FileSearch::step() {
    try {
        if (view_)
            lookOn();
        else if (!sets_.empty())
            openNextSet();
        failedInARow_ = 0;
    } catch (const std::exception& error) {
        ++refused_;
        failure_ = error.what();
        if (++failedInARow_ == mostFailures)
            cancel();
    }
    if (view_ && waiting_.empty() && undetailed_.empty())
        endSet();
}

void FileSearch::lookOn() {
    // Alternate, so that both the first details and the next names arrive soon.
    const bool details = !undetailed_.empty() && (detailsNext_ || waiting_.empty());
    detailsNext_ = !details;
    if (details) {
        const std::size_t place = undetailed_.front();
        undetailed_.pop_front();
        askForGenerations(place);
    } else if (!waiting_.empty()) {
        const std::uint32_t folder = waiting_.front();
        waiting_.pop_front();
        lookInto(folder);
    }
}

void FileSearch::openNextSet() {
    setId_ = sets_.front();
    sets_.pop_front();
    view_ = open_(setId_);
    if (!view_)
        return;
    const auto top = static_cast<std::uint32_t>(folders_.size());
    folders_.push_back({topLevel, top, 0, {}});
    seen_ = {topLevel};
    waiting_.push_back(top);
}

void FileSearch::lookInto(std::uint32_t place) {
    auto items = view_->getSubItems(folders_[place].item);
    ++foldersSeen_;
    const auto depth = static_cast<std::uint16_t>(folders_[place].depth + 1);
    for (auto& item : items) {
        if (item.is_file) {
            if (pattern_.matches(session::fromWire(item.name))) {
                undetailed_.push_back(found_.size());
                found_.push_back({setId_, item.id, place, std::move(item.name), -1, {}});
                if (isFull())
                    return stopLooking();
            }
        } else if (depth < deepest && seen_.insert(item.id).second) {
            waiting_.push_back(static_cast<std::uint32_t>(folders_.size()));
            folders_.push_back({item.id, place, depth, std::move(item.name)});
        }
    }
}

bool FileSearch::isFull() const {
    return found_.size() >= mostFound;
}

/// Files found so far still get their details.
void FileSearch::stopLooking() {
    waiting_.clear();
    sets_.clear();
}

void FileSearch::askForGenerations(std::size_t place) {
    const auto generations = view_->getItemGenerations(found_[place].item);
    FoundFile& file = found_[place];
    file.generations = static_cast<std::int32_t>(generations.size());
    const auto newest =
        std::ranges::max_element(generations, {}, &hessiancln::file_generations::backup_time);
    if (newest != generations.end())
        file.newest = *newest;
    detailed_.push_back(place);
}

void FileSearch::endSet() {
    view_.reset();
    seen_.clear();
    waiting_.clear();
    undetailed_.clear();
}

void FileSearch::cancel() {
    endSet();
    sets_.clear();
}

std::vector<std::size_t> FileSearch::takeDetailed() {
    return std::exchange(detailed_, {});
}

QStringList FileSearch::folderOf(const FoundFile& file) const {
    QStringList names;
    for (std::uint32_t place = file.folder; folders_[place].parent != place;
         place = folders_[place].parent)
        names.prepend(session::fromWire(folders_[place].name));
    return names;
}

} // namespace insight
