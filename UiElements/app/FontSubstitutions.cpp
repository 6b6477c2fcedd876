#include "FontSubstitutions_p.h"

#include <QFont>
#include <QStringList>

namespace {
struct Substitution
{
    const char *family;
    const char *standIns; // the preferred one first, separated by commas
};

constexpr Substitution substitutions[] = {
    {"Segoe UI", "Open Sans,Noto Sans,Noto Color Emoji"},
    {"Segoe UI Emoji", "Noto Color Emoji"},
    {"Consolas", "Inconsolata,DejaVu Sans Mono"},
    {"Ebrima", "Noto Sans Ethiopic,Noto Sans Tifinagh,Noto Sans NKo,Noto Sans Vai,Noto Sans Osmanya,Noto Sans Adlam"},
    {"Myanmar Text", "Noto Sans Myanmar,Padauk"},
    {"Nirmala UI",
     "Noto Sans Devanagari,Noto Sans Bengali,Noto Sans Gurmukhi,Noto Sans Gujarati,Noto Sans Oriya,Noto Sans Tamil,"
     "Noto Sans Telugu,Noto Sans Kannada,Noto Sans Malayalam,Noto Sans Sinhala,Noto Sans Ol Chiki"},
};
} // namespace

void installFontSubstitutions()
{
    for (const Substitution &substitution : substitutions)
        QFont::insertSubstitutions(QString::fromLatin1(substitution.family),
                                   QString::fromLatin1(substitution.standIns).split(QLatin1Char(',')));
}
