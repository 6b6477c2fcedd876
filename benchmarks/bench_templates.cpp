// Writing style sheets from templates, without Qt's share of a theme switch.

#include "Bench.h"
#include "HeapCounter.h"
#include "SampleThemes.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/StyleTemplate_p.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QCoreApplication>

#include <memory>

namespace {

struct State
{
    State()
        : sets(samples::colorSets(false))
        , table(sets)
        , css(samples::referenceTemplate())
        , compiled(css)
        , literal(samples::expandLiterally(selector, css, sets))
    {
    }

    WColorSets sets;
    ColorTable table;
    QString selector = QStringLiteral("#loginButton");
    QString css;
    StyleTemplate compiled;
    QString literal;
};

const QLatin1String Compiled("compiled");
const QLatin1String HeapCallsOfCompiled("heap calls of compiled");
const QLatin1String First("compile and expand");
const QLatin1String PublicPrepared("parseCSS, application's sets");
const QLatin1String PublicForeign("parseCSS, other sets");
const QLatin1String Literal("literal steps");
const QLatin1String Copy("copy of the output");
const QLatin1String PrepareSets("prepared table");
const QLatin1String CopySets("copy of the sets");

} // namespace

bench::Subject bench::templates()
{
    const auto s = std::make_shared<State>();
    auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance());

    Subject subject;
    subject.name = QLatin1String("template expansion");
    subject.rounds = 31;
    subject.quickRounds = 9;
    subject.prepare = [s, app] {
        app->setColorSets(s->sets);
        const QStringList texts {s->compiled.expand(s->selector, s->table),
                                 WThemeUtils::parseCSS(s->selector, s->css, s->sets).styleSheet,
                                 WThemeUtils::parseCSS(s->selector, s->css, app->getColorSets()).styleSheet};
        for (const QString &text : texts) {
            if (text != s->literal)
                return QStringLiteral("the library and the literal steps write different texts:\n%1\n%2")
                    .arg(text, s->literal);
        }
        return QString();
    };
    const auto twoThousand = [](auto function) {
        return repeated(2000, function);
    };
    subject.variants = {
        {Compiled, twoThousand([s] { keep(s->compiled.expand(s->selector, s->table)); })},
        {Copy, twoThousand([s] { keep(QString(s->literal.constData(), s->literal.size())); })},
        {PublicPrepared,
         twoThousand([s, app] { keep(WThemeUtils::parseCSS(s->selector, s->css, app->getColorSets())); })},
        {PublicForeign, repeated(200, [s] { keep(WThemeUtils::parseCSS(s->selector, s->css, s->sets)); })},
        {First, repeated(200, [s] { keep(StyleTemplate(s->css).expand(s->selector, s->table)); })},
        {Literal, repeated(200, [s] { keep(samples::expandLiterally(s->selector, s->css, s->sets)); })},
        {HeapCallsOfCompiled,
         [s] {
             const auto before = heapCalls();
             keep(s->compiled.expand(s->selector, s->table));
             return double(heapCalls() - before);
         },
         Variant::Count},
        {PrepareSets, repeated(10, [s] { keep(ColorTable(s->sets)); })},
        {CopySets, repeated(10, [s] { keep(WColorSets(s->sets)); })},
    };
    subject.rows = {
        {QLatin1String("template: expand"), Compiled, Literal, 0.015},
        {QLatin1String("template: expand"), Compiled, Copy, 5.0},
        {QLatin1String("template: expand, heap calls"), HeapCallsOfCompiled, QLatin1String(), 1.0},
        {QLatin1String("template: parseCSS, application's sets"), PublicPrepared, Literal, {}},
        {QLatin1String("template: parseCSS, other sets"), PublicForeign, Literal, {}},
        {QLatin1String("template: first use"), First, Literal, {}},
        {QLatin1String("template: 614 sets prepared, once per switch"), PrepareSets, CopySets, {}},
    };
    return subject;
}
