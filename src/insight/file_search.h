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

/// A case-insensitive name filter: a text contained in the name or, if it has "*" or "?", a pattern
/// for the whole name.
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
    std::int64_t item = 0;               ///< its id in the search's view
    std::uint32_t folder = 0;            ///< its index in the folders of the search
    std::string name;                    ///< UTF-8
    std::int32_t generations = -1;       ///< -1 until known
    hessiancln::file_generations newest; ///< the newest generation
};

/// Searches the content of sets folder by folder, top levels first. Each step makes one or two
/// calls, and there are no calls in between, so that a window stays responsive and the search can
/// end at any time. A view of the agent lives only while its set is being searched.
class FileSearch {
public:
    using View = boost::shared_ptr<hessiancln::BackupSetDataView>;
    /// Creates a view of the whole content of a set. Throws what its calls throw.
    using OpenView = std::function<View(std::int32_t)>;

    FileSearch(NamePattern pattern, std::vector<std::int32_t> sets, OpenView open);

    bool isDone() const;
    /// Does the next piece of work. A set, folder or file that the agent refuses is counted and
    /// skipped; 50 failures in a row end the search.
    void step();
    /// Releases the view and drops the remaining work.
    void cancel();

    const std::vector<FoundFile>& found() const { return found_; }
    /// Whether the search has stopped at its maximum of 200,000 files.
    bool isFull() const;
    /// The indices in `found` whose generations were read since the last call.
    std::vector<std::size_t> takeDetailed();
    std::size_t foldersSeen() const { return foldersSeen_; }
    std::size_t refused() const { return refused_; }
    /// The reason for the last failure, in UTF-8; empty if there was none.
    const std::string& failure() const { return failure_; }
    /// The names from the top of the set down to the file's folder.
    QStringList folderOf(const FoundFile& file) const;

private:
    struct Folder {
        std::int64_t item = 0;
        std::uint32_t parent = 0; ///< the folder itself at the top of a set
        std::uint16_t depth = 0;
        std::string name;
    };

    void openNextSet();
    void lookOn();
    void lookInto(std::uint32_t folder);
    void askForGenerations(std::size_t place);
    void stopLooking();
    void endSet();

    NamePattern pattern_;
    std::deque<std::int32_t> sets_;
    OpenView open_;
    View view_;
    std::int32_t setId_ = 0;
    std::vector<Folder> folders_;
    std::deque<std::uint32_t> waiting_;     ///< folders to search
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
