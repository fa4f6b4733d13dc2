// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemModel>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTreeView>

/// The index at a slash-separated path of names; aborts the test program if it doesn't exist.
inline QModelIndex indexAt(const QAbstractItemModel& model, const char* path) {
    QModelIndex index;
    for (const QString& name : QString::fromUtf8(path).split(QLatin1Char('/'))) {
        const QModelIndex parent = index;
        index = {};
        for (int row = 0; row < model.rowCount(parent) && !index.isValid(); ++row)
            if (model.index(row, 0, parent).data().toString() == name)
                index = model.index(row, 0, parent);
        if (!index.isValid())
            qFatal("There is no %s", path);
    }
    return index;
}

/// The names of a folder's rows.
inline QString namesIn(const QAbstractItemModel& model, const QModelIndex& folder = {}) {
    QStringList names;
    for (int row = 0; row < model.rowCount(folder); ++row)
        names << model.index(row, 0, folder).data().toString();
    return names.join(QLatin1Char('|'));
}

/// Records the rows beside which a tree draws an expansion arrow.
class ArrowStyle : public QProxyStyle {
public:
    ArrowStyle()
        : QProxyStyle(QStringLiteral("fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_IndicatorBranch && option->state.testFlag(State_Children))
            arrows.push_back(option->rect.center().y());
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    /// Whether the view, when redrawn, has an arrow beside `index`.
    bool hasArrow(QTreeView& view, const QModelIndex& index) const {
        arrows.clear();
        view.viewport()->grab();
        const QRect row = view.visualRect(index);
        return std::any_of(arrows.begin(), arrows.end(),
                           [&](int y) { return y >= row.top() && y <= row.bottom(); });
    }

private:
    mutable std::vector<int> arrows;
};
