#include "RestylePass_p.h"

#include "ThemeSupport.h"

#include <UiElements/app/IWApplication.h>

#include <QPointer>
#include <QWidget>

#include <vector>

namespace {

void collect(QWidget *widget, std::vector<QPointer<QWidget>> *themed)
{
    if (ThemeSupport::of(widget))
        themed->emplace_back(widget);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType() && !static_cast<QWidget *>(child)->isWindow())
            collect(static_cast<QWidget *>(child), themed);
    }
}

} // namespace

RestylePass::RestylePass(QObject *parent)
    : QObject(parent)
{
}

void RestylePass::ensure()
{
    static QPointer<RestylePass> pass;
    auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance());
    if (pass || !app)
        return;
    pass = new RestylePass(app);
    connect(app, &IWApplication::colorSetsChanged, pass, &RestylePass::run);
}

void RestylePass::run()
{
    std::vector<QPointer<QWidget>> themed;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        collect(window, &themed);
    for (const QPointer<QWidget> &widget : themed) {
        if (ThemeSupport *support = widget ? ThemeSupport::of(widget) : nullptr)
            support->answerThemeChange();
    }
}
