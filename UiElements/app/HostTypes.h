#pragma once

/// The types of the signal bus that belong to the host program. The library carries their values and never looks
/// inside.
///
/// A program that has nothing of its own takes the small definitions below. A program that has its own copies all that
/// stands between the two `#else` into a header, changes what is its own, keeps a Q_DECLARE_METATYPE for each type, and
/// builds all of its sources with
///
///     target_compile_definitions(program PRIVATE UIELEMENTS_HOST_TYPES_HEADER="program/HostTypes.h")
///
/// and with UIELEMENTS_HOST_DECLARES_STD_TYPES, if it declares std::string and std::vector<std::string> to the
/// meta-type system itself.
///
/// The library is not built again for that. This is why it works:
///
/// - While the library itself is compiled the types are only named. A signal hands on the addresses of its arguments,
///   so what is passed by reference may be of any size and kind, also an enumeration where this header has a record.
/// - What is passed by value has to look to the compiler as the library expects it: an enumeration of the size of an
///   int. That is checked below.
/// - Copying for queued connections, which needs the definitions, is registered by the program: every program, library
///   or plug-in that includes this header registers the types as it sees them when it is loaded, under the names that
///   the signals use. All of them have to see the same definitions; Qt ends the program when the sizes differ.

#include <QMetaType>

#include <string>
#include <type_traits>
#include <vector>

// moc must not see the declarations either: it would let the library register the types.
#if defined(UiElements_EXPORTS) || defined(Q_MOC_RUN)

struct OneToOneParticipantInfo;
enum class ApplicationMenuItem : int;

namespace flarq {
struct guid;
}

namespace commonHead {
namespace viewModels {
enum class ECMProvider : int;
enum class SetWidgetVisibilityOrigin : int;
enum class CallControlMainItemType : int;
enum class CallControlMenuItemType : int;
enum class ShowCallAssistantWindowOrigin : int;
enum class ShareSourcesSelectionWindowTab : int;
enum class OAuthProvider : int;
struct AudioDeviceAvailableStatus;
} // namespace viewModels
} // namespace commonHead

namespace uiWhiteboard {
struct CreateWhiteboardInfo;
}

#else

#ifdef UIELEMENTS_HOST_TYPES_HEADER
#include UIELEMENTS_HOST_TYPES_HEADER
#else

struct OneToOneParticipantInfo
{
    std::string id;
    std::string displayName;
};

enum class ApplicationMenuItem : int { Unknown };

namespace flarq {
/// Identifies a space, team, meeting or call.
struct guid
{
    std::string value;
};
} // namespace flarq

namespace commonHead {
namespace viewModels {
enum class ECMProvider : int { Unknown };
enum class SetWidgetVisibilityOrigin : int { Unknown };
enum class CallControlMainItemType : int { Unknown };
enum class CallControlMenuItemType : int { Unknown };
enum class ShowCallAssistantWindowOrigin : int { Unknown };
enum class ShareSourcesSelectionWindowTab : int { Unknown };
enum class OAuthProvider : int { Unknown };

struct AudioDeviceAvailableStatus
{
    bool microphoneAvailable = false;
    bool speakerAvailable = false;
};
} // namespace viewModels
} // namespace commonHead

namespace uiWhiteboard {
struct CreateWhiteboardInfo
{
    std::string spaceId;
    std::string title;
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

#endif // UIELEMENTS_HOST_TYPES_HEADER

namespace UiElementsHostTypes {

template <typename T>
void registerType(const QByteArray &name)
{
    static_assert(QMetaTypeId2<T>::Defined, "declare the type with Q_DECLARE_METATYPE");
    qRegisterNormalizedMetaType<T>(name);
}

template <typename T>
void registerPassedByValue(const QByteArray &name)
{
    static_assert(std::is_enum<T>::value && sizeof(T) == sizeof(int), "signals pass it by value, as an int");
    registerType<T>(name);
}

inline bool registerAll()
{
    using namespace commonHead::viewModels;
    registerType<OneToOneParticipantInfo>(QByteArrayLiteral("OneToOneParticipantInfo"));
    registerType<flarq::guid>(QByteArrayLiteral("flarq::guid"));
    registerType<AudioDeviceAvailableStatus>(QByteArrayLiteral("commonHead::viewModels::AudioDeviceAvailableStatus"));
    registerType<uiWhiteboard::CreateWhiteboardInfo>(QByteArrayLiteral("uiWhiteboard::CreateWhiteboardInfo"));
    registerPassedByValue<ApplicationMenuItem>(QByteArrayLiteral("ApplicationMenuItem"));
    registerPassedByValue<ECMProvider>(QByteArrayLiteral("commonHead::viewModels::ECMProvider"));
    registerPassedByValue<SetWidgetVisibilityOrigin>(
        QByteArrayLiteral("commonHead::viewModels::SetWidgetVisibilityOrigin"));
    registerPassedByValue<CallControlMainItemType>(
        QByteArrayLiteral("commonHead::viewModels::CallControlMainItemType"));
    registerPassedByValue<CallControlMenuItemType>(
        QByteArrayLiteral("commonHead::viewModels::CallControlMenuItemType"));
    registerPassedByValue<ShowCallAssistantWindowOrigin>(
        QByteArrayLiteral("commonHead::viewModels::ShowCallAssistantWindowOrigin"));
    registerPassedByValue<ShareSourcesSelectionWindowTab>(
        QByteArrayLiteral("commonHead::viewModels::ShareSourcesSelectionWindowTab"));
    registerPassedByValue<OAuthProvider>(QByteArrayLiteral("commonHead::viewModels::OAuthProvider"));
    return true;
}

inline const bool registered = registerAll();

} // namespace UiElementsHostTypes

#endif // UiElements_EXPORTS

#ifndef UIELEMENTS_HOST_DECLARES_STD_TYPES
Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(std::vector<std::string>)
#endif
