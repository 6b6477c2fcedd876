#include "FontSubstitutions_p.h"

#include <QFont>
#include <QStringList>

namespace {
struct Substitution
{
    const char *family;
    const char *standIns; // the preferred one first, separated by commas
};

// Only the families that carry our texts. The further ones of the fallback lists serve single scripts, for which the
// system finds a font by itself; naming their stand-ins here would only cost every program start.
constexpr Substitution substitutions[] = {
    {"Segoe UI", "Open Sans,Noto Sans,Noto Color Emoji"},
    {"Segoe UI Emoji", "Noto Color Emoji"},
    {"Consolas", "Inconsolata,DejaVu Sans Mono"},
};
} // namespace

void installFontSubstitutions()
{
    for (const Substitution &substitution : substitutions)
        QFont::insertSubstitutions(QString::fromLatin1(substitution.family),
                                   QString::fromLatin1(substitution.standIns).split(QLatin1Char(',')));
}
