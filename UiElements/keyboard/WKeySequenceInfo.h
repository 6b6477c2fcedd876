#pragma once

#include <UiElements/keyboard/WKeySequenceLookup.h>
#include <UiElements/uielements_export.h>

#include <QKeySequence>
#include <QMetaType>
#include <QObject>
#include <QString>

/// One shortcut of WKeySequenceLookup with all that a help view shows of it. Texts are in the language of the moment.
class UIELEMENTS_EXPORT WKeySequenceInfo
{
    Q_GADGET
    Q_PROPERTY(WKeySequenceLookup::Shortcut shortcut READ shortcut CONSTANT)
    Q_PROPERTY(WKeySequenceLookup::Group group READ group CONSTANT)
    Q_PROPERTY(QString groupName READ groupName CONSTANT)
    Q_PROPERTY(QKeySequence keySequence READ keySequence CONSTANT)
    Q_PROPERTY(QString key READ key CONSTANT)
    Q_PROPERTY(QString portableText READ portableText CONSTANT)
    Q_PROPERTY(QString description READ description CONSTANT)

public:
    WKeySequenceInfo() = default;
    /// A number that is not of the enumeration is reported and becomes NoShortcut.
    explicit WKeySequenceInfo(WKeySequenceLookup::Shortcut shortcut);

    WKeySequenceLookup::Shortcut shortcut() const { return m_shortcut; }
    WKeySequenceLookup::Group group() const { return WKeySequenceLookup::group(m_shortcut); }
    QString groupName() const { return WKeySequenceLookup::groupName(group()); }
    QKeySequence keySequence() const { return WKeySequenceLookup::keySequence(m_shortcut); }
    /// The key as the user reads it.
    QString key() const { return WKeySequenceLookup::nativeText(m_shortcut); }
    QString portableText() const { return WKeySequenceLookup::portableText(m_shortcut); }
    QString description() const { return WKeySequenceLookup::description(m_shortcut); }

    friend bool operator==(const WKeySequenceInfo &a, const WKeySequenceInfo &b)
    {
        return a.m_shortcut == b.m_shortcut;
    }
    friend bool operator!=(const WKeySequenceInfo &a, const WKeySequenceInfo &b) { return !(a == b); }

private:
    WKeySequenceLookup::Shortcut m_shortcut = WKeySequenceLookup::Shortcut::NoShortcut;
};

Q_DECLARE_METATYPE(WKeySequenceInfo)
