#pragma once

// What a host puts in the place of the library's small definitions: other sizes, other kinds, unscoped enumerations.

#include <QByteArray>
#include <QMetaType>

#include <string>

class OneToOneParticipantInfo
{
public:
    virtual ~OneToOneParticipantInfo() = default;
    bool operator==(const OneToOneParticipantInfo &o) const { return name == o.name && level == o.level; }
    QByteArray name;
    double level = 0;
};

enum ApplicationMenuItem { OwnMenuItemA, OwnMenuItemB, OwnMenuItemC };

namespace flarq {
class guid
{
public:
    guid() = default;
    explicit guid(quint64 number)
        : m_number {number, ~number, 0, number}
    {
    }
    bool operator==(const guid &o) const { return std::equal(std::begin(m_number), std::end(m_number), o.m_number); }

private:
    quint64 m_number[8] = {};
};
} // namespace flarq

namespace commonHead {
namespace viewModels {
enum ECMProvider { OwnProvider = 3 };
enum class SetWidgetVisibilityOrigin { A, B };
enum class CallControlMainItemType { A, B };
enum class CallControlMenuItemType : unsigned { A, B };
enum class ShowCallAssistantWindowOrigin { A, B };
enum class ShareSourcesSelectionWindowTab { A, B };
enum class OAuthProvider { A, B };
enum class AudioDeviceAvailableStatus : char { None, All };
} // namespace viewModels
} // namespace commonHead

namespace uiWhiteboard {
struct CreateWhiteboardInfo
{
    bool operator==(const CreateWhiteboardInfo &o) const { return text == o.text; }
    std::string text;
};
} // namespace uiWhiteboard

Q_DECLARE_METATYPE(OneToOneParticipantInfo)
Q_DECLARE_METATYPE(ApplicationMenuItem)
Q_DECLARE_METATYPE(flarq::guid)
Q_DECLARE_METATYPE(commonHead::viewModels::ECMProvider)
Q_DECLARE_METATYPE(commonHead::viewModels::SetWidgetVisibilityOrigin)
Q_DECLARE_METATYPE(commonHead::viewModels::CallControlMainItemType)
Q_DECLARE_METATYPE(commonHead::viewModels::CallControlMenuItemType)
Q_DECLARE_METATYPE(commonHead::viewModels::ShowCallAssistantWindowOrigin)
Q_DECLARE_METATYPE(commonHead::viewModels::ShareSourcesSelectionWindowTab)
Q_DECLARE_METATYPE(commonHead::viewModels::OAuthProvider)
Q_DECLARE_METATYPE(commonHead::viewModels::AudioDeviceAvailableStatus)
Q_DECLARE_METATYPE(uiWhiteboard::CreateWhiteboardInfo)
