#pragma once

#include <UiElements/uielements_export.h>

#include <memory>

class QJsonObject;
class QString;

namespace EmojiPicker {

class EmojiData;

/// Reads emoji catalogues. An empty pointer means that there is none; nothing is reported.
class UIELEMENTS_EXPORT IEmojiParser
{
public:
    virtual ~IEmojiParser() = default;

    virtual std::shared_ptr<const EmojiData> parseFile(const QString &path) = 0;
    virtual std::shared_ptr<const EmojiData> parseObject(const QJsonObject &root) = 0;
};

} // namespace EmojiPicker
