#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// How a template is read as text: words, lengths, directives and declarations.
namespace TemplateText {

/// A message about a text of megabytes helps nobody.
QString forMessage(const QString &text);

/// The words of the value of a directive, in lower case; commas count as blanks.
QStringList words(const QString &value);
/// "6" or "6px". Anything else is no number and leaves `pixels` alone.
bool readPixels(QString word, int *pixels);

struct Found
{
    bool present = false;
    QString value;
};
/// Cuts out the first occurrence of the directive that has a value.
Found takeFirst(const QString &directive, QString &css);
/// Cuts out every one; true if there was one.
bool removeDirective(const QString &directive, QString &css);
/// Where the value of a directive ends that no ";" ends.
int endOfValue(const QString &css, int from, bool isList);

struct Run
{
    int start;
    int end;
};
/// The stretches of declarations that stand outside any rule.
std::vector<Run> bareDeclarations(const QString &css);

} // namespace TemplateText
