#pragma once

#include <UiElements/uielements_export.h>

#include <QKeySequence>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVector>

class QKeyEvent;

/// One key press, as something to compare with key sequences.
///
/// - The keypad is like the rest of the keyboard: its Enter is Return. Backtab is Shift+Tab.
/// - A modifier key alone is no key sequence.
/// - Shift that a sign needed is no part of the sequence: Ctrl+? stands for Ctrl, Shift and the key with "/" and "?" on
///   a US keyboard, and Ctrl+/ for Ctrl, Shift and 7 on a German one. With a digit Shift may be meant or needed, and
///   both count.
/// - A Latin letter is what the user's layout says. On a layout that writes another script the key counts as the letter
///   that a US keyboard has in its place. Not so where that layout gives the key a sign of Latin-1 (Shift+V on the
///   Arabic one is "{"): Latin layouts have such signs among the letters too.
/// - The row of digits is one on all layouts when Ctrl, Alt or Meta is held: on a French keyboard, Alt and the key with
///   "&" and "1" is Alt+1.
///
/// The last two need the number of the physical key, which xcb and Wayland give.
class UIELEMENTS_EXPORT WKeyEvent
{
    Q_GADGET
    Q_PROPERTY(int key READ key CONSTANT)
    Q_PROPERTY(Qt::KeyboardModifiers modifiers READ modifiers CONSTANT)
    Q_PROPERTY(QString text READ text CONSTANT)
    Q_PROPERTY(quint32 nativeScanCode READ nativeScanCode CONSTANT)
    Q_PROPERTY(bool isAutoRepeat READ isAutoRepeat CONSTANT)
    Q_PROPERTY(QKeySequence keySequence READ keySequence CONSTANT)

public:
    WKeyEvent() = default;
    explicit WKeyEvent(const QKeyEvent &event);
    WKeyEvent(int key, Qt::KeyboardModifiers modifiers, const QString &text = QString(), quint32 nativeScanCode = 0,
              bool isAutoRepeat = false);

    // As the platform told them.
    int key() const { return m_key; }
    Qt::KeyboardModifiers modifiers() const { return m_modifiers; }
    QString text() const { return m_text; }
    quint32 nativeScanCode() const { return m_nativeScanCode; }
    bool isAutoRepeat() const { return m_isAutoRepeat; }

    /// The first of keySequences(), for display; empty for a modifier alone.
    QKeySequence keySequence() const { return keySequences().value(0); }
    /// All that the press can mean, best first.
    QVector<QKeySequence> keySequences() const;
    /// False for an empty key sequence and for one of several presses.
    Q_INVOKABLE bool matches(const QKeySequence &keySequence) const;

private:
    int m_key = 0;
    Qt::KeyboardModifiers m_modifiers;
    QString m_text;
    quint32 m_nativeScanCode = 0;
    bool m_isAutoRepeat = false;
};

Q_DECLARE_METATYPE(WKeyEvent)
