#pragma once
// The version block of a program file.

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

namespace padral {

/// The fixed part of a version block: 52 bytes, little endian, beginning with 0xFEEF04BD.
struct VersionFichero {
    /// High word to low word: 1.30.0.1 is {1, 30, 0, 1}.
    std::array<quint16, 4> fichero{};
    std::array<quint16, 4> producto{};
};

/// Size in bytes of the version block of a file; 0 when the file has none or cannot be read.
int TamanoVersion(const QString& ruta);
/// The version block of a file; nothing when TamanoVersion is below 1.
std::optional<VersionFichero> LeerVersion(const QString& ruta);

}  // namespace padral
