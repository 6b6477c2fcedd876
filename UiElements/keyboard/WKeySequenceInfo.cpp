#include <UiElements/keyboard/WKeySequenceInfo.h>

#include <QDebug>
#include <QMetaEnum>

WKeySequenceInfo::WKeySequenceInfo(WKeySequenceLookup::Shortcut shortcut)
{
    if (QMetaEnum::fromType<WKeySequenceLookup::Shortcut>().valueToKey(int(shortcut)))
        m_shortcut = shortcut;
    else
        qWarning("WKeySequenceInfo::WKeySequenceInfo - Unknown shortcut: %d", int(shortcut));
}
