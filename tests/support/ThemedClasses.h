#pragma once

#include <UiElements/widgets/WDateTimeEdit.h>
#include <UiElements/widgets/WDialog.h>
#include <UiElements/widgets/WFrame.h>
#include <UiElements/widgets/WListView.h>
#include <UiElements/widgets/WListWidget.h>
#include <UiElements/widgets/WMainWindow.h>
#include <UiElements/widgets/WMenu.h>
#include <UiElements/widgets/WProgressBar.h>
#include <UiElements/widgets/WRadioButton.h>
#include <UiElements/widgets/WSlider.h>
#include <UiElements/widgets/WSplitter.h>
#include <UiElements/widgets/WStackedWidget.h>
#include <UiElements/widgets/WTextBrowser.h>
#include <UiElements/widgets/WTextEdit.h>
#include <UiElements/widgets/WTimeEdit.h>
#include <UiElements/widgets/WTreeView.h>
#include <UiElements/widgets/WWidget.h>

#include <QtTest>

#include <functional>

using MakeWidget = std::function<QWidget *(QWidget *parent)>;
Q_DECLARE_METATYPE(MakeWidget)

/// Calls `visit(name, make)` for every themeable class.
template <typename Visitor>
void forEachThemedClass(Visitor visit)
{
    const auto one = [&visit](auto *type) {
        using W = std::remove_pointer_t<decltype(type)>;
        visit(W::staticMetaObject.className(), MakeWidget([](QWidget *parent) { return new W(parent); }));
    };
    one(static_cast<WWidget *>(nullptr));
    one(static_cast<WFrame *>(nullptr));
    one(static_cast<WDialog *>(nullptr));
    one(static_cast<WMainWindow *>(nullptr));
    one(static_cast<WSplitter *>(nullptr));
    one(static_cast<WStackedWidget *>(nullptr));
    one(static_cast<WTreeView *>(nullptr));
    one(static_cast<WListView *>(nullptr));
    one(static_cast<WListWidget *>(nullptr));
    one(static_cast<WTextEdit *>(nullptr));
    one(static_cast<WTextBrowser *>(nullptr));
    one(static_cast<WTimeEdit *>(nullptr));
    one(static_cast<WDateTimeEdit *>(nullptr));
    one(static_cast<WRadioButton *>(nullptr));
    one(static_cast<WSlider *>(nullptr));
    one(static_cast<WProgressBar *>(nullptr));
    one(static_cast<WMenu *>(nullptr));
}

/// One row for every themeable class, column "make".
inline void addThemedClasses()
{
    QTest::addColumn<MakeWidget>("make");
    forEachThemedClass([](const char *name, const MakeWidget &make) { QTest::newRow(name) << make; });
}
