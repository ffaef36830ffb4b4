// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The click and double click of the two recommendation lists, which never hold an entry.
#include "gui/workbench/recommendation_lists.h"

#include "gui/common/text_codec.h"
#include "workbench/recommendation.h"

#include <QListWidget>

namespace vesk::gui {

void WireRecommendationList(QListWidget* list, RecommendationList which, WindowContext& context,
                            std::function<void()> showArea) {
    QObject::connect(list, &QListWidget::itemClicked, list, [list](QListWidgetItem* item) {
        list->setToolTip(fromWindows1252(RecommendationListToolTip(toWindows1252(item->text()))));
    });
    QObject::connect(list, &QListWidget::itemDoubleClicked, list,
                     [which, &context, showArea = std::move(showArea)](QListWidgetItem* item) {
                         const std::string text = toWindows1252(item->text());
                         ApplicationState& app = context.app;
                         const bool ran = context.runEvent([&] {
                             if (which == RecommendationList::Dispensing) {
                                 DoubleClickDispensingList(text, app.panel);
                             } else {
                                 DoubleClickPumpList(text, app.panel, app.window.recommendationFocus);
                             }
                         });
                         if (ran) {
                             showArea();
                         }
                     });
}

} // namespace vesk::gui
