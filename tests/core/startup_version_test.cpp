// The version of the run, read from the program file.

#include "core/data_fixture.h"
#include "platform/version_marker.h"

namespace padral {
namespace {

class Version : public ::testing::Test {
protected:
    void escribir(const QByteArray& contenido) {
        QFile fichero(carpeta.filePath(QStringLiteral("DPadral.exe")));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(contenido);
    }
    void obtener() { ObtenerVersionPrograma(estado, carpeta.path()); }

    QTemporaryDir carpeta;
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
};

QByteArray palabra(quint16 alta, quint16 baja) {
    const auto octeto = [](int valor) { return static_cast<char>(valor & 0xFF); };
    return QByteArray{}
        .append(octeto(baja))
        .append(octeto(baja >> 8))
        .append(octeto(alta))
        .append(octeto(alta >> 8));
}

QByteArray programa(const std::array<quint16, 4>& fichero, const std::array<quint16, 4>& producto) {
    QByteArray marca;
    for (const volatile std::uint8_t& invertida : MarcaVersionInvertida)
        marca.append(static_cast<char>(~invertida));
    const QByteArray bloque = palabra(0xFEEF, 0x04BD) + palabra(1, 0) +
                              palabra(fichero[0], fichero[1]) + palabra(fichero[2], fichero[3]) +
                              palabra(producto[0], producto[1]) + palabra(producto[2], producto[3]);
    return "code" + marca + bloque + QByteArray(52 - bloque.size(), '\0') + "code";
}

struct Caso {
    std::array<quint16, 4> fichero, producto;
    const char16_t *programa, *textoProducto;
};

TEST_F(Version, DeTresYDeCuatroPartes) {
    const Caso casos[] = {
        {{1, 30, 0, 1}, {1, 30, 0, 1}, u"1.30.1", u"1.30.0.1"},
        {{1, 2, 3, 4}, {5, 6, 7, 8}, u"1.2.4", u"5.6.7.8"},
        {{0, 0, 9, 0}, {0, 0, 0, 0}, u"0.0.0", u"0.0.0.0"},
        {{65535, 10, 1, 65535}, {65535, 1, 1, 65535}, u"65535.10.65535", u"65535.1.1.65535"},
    };
    for (const auto& caso : casos) {
        escribir(programa(caso.fichero, caso.producto));
        obtener();
        EXPECT_EQ(estado.VersionPrograma, QString::fromUtf16(caso.programa));
        EXPECT_EQ(estado.VersionProducto, QString::fromUtf16(caso.textoProducto));
        EXPECT_EQ(estado.act.ProgVer1, QString::number(caso.fichero[0]));
        EXPECT_EQ(estado.act.ProgVer2, QString::number(caso.fichero[1]));
        EXPECT_EQ(estado.act.ProgVer3, QString::number(caso.fichero[3]));
    }
    EXPECT_EQ(estado.act.ActFile, carpeta.filePath(QStringLiteral("DPadral.exe")));
}

void esperarSinVersion(const EstadoCompartido& estado) {
    for (const QString& valor : {estado.VersionPrograma, estado.VersionProducto,
                                 estado.act.ProgVer1, estado.act.ProgVer2, estado.act.ProgVer3})
        EXPECT_EQ(valor, QString());
}

TEST_F(Version, SinBloqueSaleElTexto331YElArranqueSigue) {
    for (const bool hayFichero : {true, false}) {
        if (hayFichero)
            escribir("no version here");
        else
            ASSERT_TRUE(QFile::remove(carpeta.filePath(QStringLiteral("DPadral.exe"))));
        avisos.Espera(Mensaje{QStringLiteral(" ==>"), QString(), Icono::Ninguno, Botones::Aceptar});
        obtener();
        esperarSinVersion(estado);
        EXPECT_EQ(estado.act.ActFile, carpeta.filePath(QStringLiteral("DPadral.exe")));
    }
}

}  // namespace
}  // namespace padral
