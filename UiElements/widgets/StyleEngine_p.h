#pragma once

#include <QtGlobal>

#include <functional>

/// What has to be known of Qt's style engine, which reads the property "styleSheet" of widgets.
namespace StyleEngine {

/// In between, whoever reads the property is the engine.
void beginReads();
void endReads();
class Reads
{
public:
    Reads() { beginReads(); }
    ~Reads() { endReads(); }
    Reads(const Reads &) = delete;
    Reads &operator=(const Reads &) = delete;
};
bool isReading();
/// How often the engine has been given an expanded text.
quint64 &textsRead();

/// Whether it is busy with a widget; it does not look at any other meanwhile.
bool isAtWork();
/// Calls the function while the engine is busy with a widget of its own. A sheet that is set meanwhile is stored and
/// the previous forgotten, but nothing is polished: the engine reads the sheet when the widget asks for its style
/// again. False, and nothing called, if it is busy already.
bool whileAtWork(const std::function<void()> &function);

} // namespace StyleEngine
