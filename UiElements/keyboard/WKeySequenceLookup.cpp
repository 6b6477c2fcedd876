#include <UiElements/keyboard/WKeySequenceLookup.h>

WKeySequenceLookup::WKeySequenceLookup(QObject *parent)
    : QObject(parent)
{
}
