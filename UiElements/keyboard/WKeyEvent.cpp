#include <UiElements/keyboard/WKeyEvent.h>

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace {

// The keys of a US keyboard at the numbers that linux/input-event-codes.h gives them: KEY_1 is 2, KEY_Q is 16. A blank
// stands for a key without a sign.
constexpr char usKeys[] = "  1234567890-=  "
                          "QWERTYUIOP[]  AS"
                          "DFGHJKL;'` \\ZXCV"
                          "BNM,./";
constexpr quint32 firstScanCode = 8; // X11, and xkb on Wayland, count from here
constexpr int firstNamedKey = 0x01000000; // from here on Qt::Key is no character

int usKey(quint32 nativeScanCode)
{
    const quint32 index = nativeScanCode - firstScanCode;
    return nativeScanCode >= firstScanCode && index < std::size(usKeys) - 1 && usKeys[index] != ' ' ? usKeys[index] : 0;
}

bool isDigit(int key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

/// With the one name of keys that have two.
int normalized(int keyWithModifiers)
{
    int modifiers = keyWithModifiers & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    int key = keyWithModifiers & ~int(Qt::KeyboardModifierMask);
    if (key == Qt::Key_Enter)
        key = Qt::Key_Return;
    if (key == Qt::Key_Backtab) {
        key = Qt::Key_Tab;
        modifiers |= Qt::ShiftModifier;
    }
    return modifiers | key;
}

bool isModifierKey(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock)
        || (key >= Qt::Key_Super_L && key <= Qt::Key_Hyper_R && key != Qt::Key_Menu) || key == Qt::Key_Direction_L
        || key == Qt::Key_Direction_R || key == Qt::Key_AltGr || key == Qt::Key_Mode_switch;
}

} // namespace

WKeyEvent::WKeyEvent(const QKeyEvent &event)
    : WKeyEvent(event.key(), event.modifiers(), event.text(), event.nativeScanCode(), event.isAutoRepeat())
{
}

WKeyEvent::WKeyEvent(int key, Qt::KeyboardModifiers modifiers, const QString &text, quint32 nativeScanCode,
                     bool isAutoRepeat)
    : m_key(key)
    , m_modifiers(modifiers)
    , m_text(text)
    , m_nativeScanCode(nativeScanCode)
    , m_isAutoRepeat(isAutoRepeat)
{
}

QVector<QKeySequence> WKeyEvent::keySequences() const
{
    int key = m_key;
    if ((key <= 0 || key == Qt::Key_unknown) && m_text.size() == 1 && m_text.at(0).isPrint())
        key = m_text.at(0).toUpper().unicode(); // remote desktops send texts without keys
    if (key <= 0 || key == Qt::Key_unknown || isModifierKey(key))
        return {};

    const int full = normalized(int(m_modifiers) | key);
    const int modifiers = full & int(Qt::KeyboardModifierMask);
    if (key >= firstNamedKey)
        return {QKeySequence(full)};

    QVector<QKeySequence> keys(1, QKeySequence(full));
    const auto add = [&keys](int other) {
        if (!keys.contains(QKeySequence(other)))
            keys << QKeySequence(other);
    };
    const auto character = uint(key);
    if ((modifiers & Qt::ShiftModifier) && !m_modifiers.testFlag(Qt::KeypadModifier) && !QChar::isLetter(character)
        && !QChar::isSpace(character)) {
        add(full & ~int(Qt::ShiftModifier));
        if (!isDigit(key))
            std::swap(keys[0], keys[1]);
    }
    if (const int physical = usKey(m_nativeScanCode)) {
        // The platform itself goes to a Latin letter only while Ctrl is held.
        const bool otherScript = character > 0xff && QChar::script(character) != QChar::Script_Latin;
        const bool digitRow = isDigit(physical) && (modifiers & ~int(Qt::ShiftModifier)) && !isDigit(key)
            && !m_modifiers.testFlag(Qt::GroupSwitchModifier);
        if (otherScript || digitRow)
            add(modifiers | physical);
    }
    return keys;
}

bool WKeyEvent::matches(const QKeySequence &keySequence) const
{
    return keySequence.count() == 1 && keySequences().contains(QKeySequence(normalized(keySequence[0])));
}
