#pragma once
// Text between the core, which keeps UTF-8 in std::string, and Qt.
#include <QString>
#include <string>

namespace tarvex::qt {

inline QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace tarvex::qt
