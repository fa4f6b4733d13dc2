// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/wrapping_row.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QWidget>

namespace ui {

namespace {

struct Cell {
    std::unique_ptr<QLayoutItem> item;
    bool grows = false; ///< takes the remaining width of its line
};

using Cells = std::vector<Cell>;
/// Consecutive cells, excluding `end`.
struct Line {
    Cells::const_iterator begin, end;
};

bool isShown(const Cell& cell) {
    return !cell.item->widget() || !cell.item->isEmpty();
}

bool belongsToNext(const Cell& cell) {
    const auto* label = qobject_cast<const QLabel*>(cell.item->widget());
    return cell.item->spacerItem() || (label && label->buddy());
}

int least(const Cell& cell) {
    return cell.item->minimumSize().width();
}

int wanted(const Cell& cell) {
    return std::max(least(cell), cell.item->sizeHint().width());
}

/// The width below which a cell moves to the next line.
int useful(const Cell& cell) {
    return cell.grows ? (least(cell) + wanted(cell)) / 2 : least(cell);
}

class WrappingRow : public QLayout {
public:
    explicit WrappingRow(int gap) { setSpacing(gap); }

    void add(std::unique_ptr<QLayoutItem> item, bool grows) {
        cells_.push_back({std::move(item), grows});
    }

    void addItem(QLayoutItem* item) override { add(std::unique_ptr<QLayoutItem>(item), false); }
    int count() const override { return static_cast<int>(cells_.size()); }
    QLayoutItem* itemAt(int index) const override {
        return index >= 0 && index < count() ? cells_[static_cast<std::size_t>(index)].item.get()
                                             : nullptr;
    }
    QLayoutItem* takeAt(int index) override {
        if (!itemAt(index))
            return nullptr;
        const auto at = cells_.begin() + index;
        QLayoutItem* item = at->item.release();
        cells_.erase(at);
        return item;
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override {
        int height = -spacing();
        for (const Line& line : linesIn(width))
            height += heightOf(line) + spacing();
        return std::max(height, 0);
    }
    QSize sizeHint() const override { return {widthOf(whole(), wanted), heightOf(whole())}; }
    QSize minimumSize() const override {
        int width = 0;
        for (const Line& line : linesIn(0))
            width = std::max(width, widthOf(line, least));
        return {width, heightOf(whole())};
    }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }

    void setGeometry(const QRect& rect) override {
        QLayout::setGeometry(rect);
        int top = rect.top();
        for (const Line& line : linesIn(rect.width())) {
            place(line, {rect.left(), top, rect.width(), heightOf(line)});
            top += heightOf(line) + spacing();
        }
    }

private:
    Line whole() const { return {cells_.begin(), cells_.end()}; }

    int widthOf(const Line& line, int (*widthOfCell)(const Cell&)) const {
        int width = -spacing();
        for (auto cell = line.begin; cell != line.end; ++cell)
            if (isShown(*cell))
                width += widthOfCell(*cell) + spacing();
        return std::max(width, 0);
    }

    int heightOf(const Line& line) const {
        int height = 0;
        for (auto cell = line.begin; cell != line.end; ++cell)
            if (isShown(*cell))
                height = std::max(height, cell->item->sizeHint().height());
        return height;
    }

    std::vector<Line> linesIn(int width) const {
        std::vector<Line> lines;
        auto begin = cells_.begin();
        while (begin != cells_.end()) {
            auto end = endOfGroup(begin);
            while (end != cells_.end() && widthOf({begin, endOfGroup(end)}, useful) <= width)
                end = endOfGroup(end);
            lines.push_back({begin, end});
            begin = end;
        }
        return lines;
    }

    /// The end of the group that starts at `cell`: labels and spacers, and the cell after them.
    Cells::const_iterator endOfGroup(Cells::const_iterator cell) const {
        while (belongsToNext(*cell) && cell + 1 != cells_.end())
            ++cell;
        return cell + 1;
    }

    void place(const Line& line, const QRect& rect) const {
        const int surplus = rect.width() - widthOf(line, wanted);
        const int lacking = widthOf(line, wanted) - widthOf(line, least);
        const auto growing = std::count_if(
            line.begin, line.end, [](const Cell& cell) { return cell.grows && isShown(cell); });
        int left = rect.left();
        for (auto cell = line.begin; cell != line.end; ++cell) {
            if (!isShown(*cell))
                continue;
            int width = wanted(*cell);
            if (surplus < 0)
                width +=
                    std::max(surplus, -lacking) * (width - least(*cell)) / std::max(lacking, 1);
            else if (cell->grows)
                width += surplus / static_cast<int>(growing);
            const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
            cell->item->setGeometry(
                QStyle::visualRect(direction, rect, {left, rect.top(), width, rect.height()}));
            left += width + spacing();
        }
    }

    Cells cells_;
};

} // namespace

void letRowWrap(QHBoxLayout& row) {
    auto lines = std::make_unique<WrappingRow>(row.spacing());
    while (row.count() > 0) {
        const bool stretches = row.stretch(0) > 0;
        std::unique_ptr<QLayoutItem> item(row.takeAt(0));
        const bool expands = item->spacerItem() && item->expandingDirections() & Qt::Horizontal;
        lines->add(std::move(item), stretches || expands);
    }
    row.addLayout(lines.release());
}

} // namespace ui
