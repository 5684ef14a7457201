#ifndef RUQGUI_SIGNALTEXT_H
#define RUQGUI_SIGNALTEXT_H

#include <string>

namespace qt3 {

/// How SignalTap writes one argument: one home for both toolkits.
std::string signalText(bool value);
std::string signalText(int value);
std::string signalText(double value);
std::string signalText(const std::string& utf8);
std::string signalText(const void* pointer);

/// The name in a signature: what stands before the parenthesis.
std::string signalName(const std::string& signature);

} // namespace qt3

#endif
