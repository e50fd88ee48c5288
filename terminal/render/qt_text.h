#pragma once

// Conversion between the form model's UTF-8 texts and Qt's strings.

#include <QString>
#include <string>
#include <string_view>

namespace algo::terminal::render {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

}  // namespace algo::terminal::render
