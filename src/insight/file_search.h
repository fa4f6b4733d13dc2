// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <boost/shared_ptr.hpp>

#include "api/data_view_records.h"

namespace hessiancln {
class BackupSetDataView;
}

namespace insight {

/// Names to look for, in any case: a text that stands somewhere in the name, or with "*" or "?" in
/// it a pattern for the whole name.
class NamePattern {
public:
    explicit NamePattern(const QString& text);

    bool isEmpty() const { return text_.isEmpty(); }
    bool matches(const QString& name) const;

private:
    QString text_;
    QRegularExpression expression_;
    bool isPattern_;
};

/// A stored file whose name matches.
struct FoundFile {
    std::int32_t setId = 0;
    std::int64_t item = 0;               ///< its id in the view of the search
    std::uint32_t folder = 0;            ///< its place among the folders of the search
    std::string name;                    ///< UTF-8
    std::int32_t generations = -1;       ///< -1 until they are known
    hessiancln::file_generations newest; ///< of them
};

/// Looks through what sets hold, folder by folder, those nearest to the top first. Each step makes
/// one or two calls; nothing is asked between them, so that a window stays alive and the search can
/// end at any time. A view of the agent lives only while its set is looked through.
class FileSearch {
public:
    using View = boost::shared_ptr<hessiancln::BackupSetDataView>;
    /// Makes a view of all that a set holds. Raises what its calls raise.
    using OpenView = std::function<View(std::int32_t)>;

    FileSearch(NamePattern pattern, std::vector<std::int32_t> sets, OpenView open);

    bool isDone() const;
    /// Does the next piece of work. A set, folder or file that the agent refuses is counted and
    /// passed over; 50 in a row end the search.
    void step();
    /// Gives the view back. Nothing is left to do.
    void cancel();

    const std::vector<FoundFile>& found() const { return found_; }
    /// The places in `found` that got their generations since the last call.
    std::vector<std::size_t> takeDetailed();
    std::size_t foldersSeen() const { return foldersSeen_; }
    std::size_t refused() const { return refused_; }
    /// Why the last one was refused, in UTF-8; empty if none was.
    const std::string& failure() const { return failure_; }
    /// The names from the top of the set down to the folder of the file.
    QStringList folderOf(const FoundFile& file) const;

private:
    struct Folder {
        std::int64_t item = 0;
        std::uint32_t parent = 0; ///< itself for the top of a set
        std::uint16_t depth = 0;
        std::string name;
    };

    void openNextSet();
    void lookOn();
    void lookInto(std::uint32_t folder);
    void askForGenerations(std::size_t place);
    void endSet();

    NamePattern pattern_;
    std::deque<std::int32_t> sets_;
    OpenView open_;
    View view_;
    std::int32_t setId_ = 0;
    std::vector<Folder> folders_;
    std::deque<std::uint32_t> waiting_;     ///< folders to look into
    std::deque<std::size_t> undetailed_;    ///< files without their generations
    std::unordered_set<std::int64_t> seen_; ///< items of the view that were queued
    std::vector<FoundFile> found_;
    std::vector<std::size_t> detailed_;
    std::size_t foldersSeen_ = 0;
    std::size_t refused_ = 0;
    int failedInARow_ = 0;
    std::string failure_;
    bool detailsNext_ = false;
};

} // namespace insight
