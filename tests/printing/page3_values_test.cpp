// The values of the third page: each answer in its box, under its letter.

#include <gtest/gtest.h>

#include "page3_expected_questions.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

const QString cruz = QStringLiteral("X");

qsizetype Escritos(const Documento& documento) {
    QStringList textos = TextosDePagina(documento, 2);
    textos.removeAll(QString());
    return textos.size();
}

struct ImpresionHoja3 : Impresion {
    ImpresionHoja3() { datos.Apartado4 = cruz; }
    static qsizetype Vacia() {
        static const qsizetype vacia = Escritos(ImpresionHoja3().Copia());
        return vacia;
    }
    /// The third page shows that value there and no other value.
    void EsperaSolo(const TextoEsperado& valor) {
        const Documento& documento = Copia();
        Trazado(documento, 2).Espera(valor);
        EXPECT_EQ(Escritos(documento), Vacia() + 1) << valor.texto.toStdString();
    }
    void EsperaNinguno() { EXPECT_EQ(Escritos(Copia()), Vacia()); }
};

/// Any value but those letters, small ones and blanks among them.
std::vector<QString> OtrasLetras(const QString& letras) {
    std::vector<QString> otras = {QString(), QStringLiteral(" ")};
    for (char16_t c = u'0'; c <= u'z'; ++c)
        if (!letras.contains(QChar(c))) otras.emplace_back(QChar(c));
    return otras;
}

class CadaSolicitud : public testing::TestWithParam<FilaSolicitud> {};
INSTANTIATE_TEST_SUITE_P(Apartado4, CadaSolicitud, testing::ValuesIn(solicitudes));

TEST_P(CadaSolicitud, MarcaSuCuadro) {
    for (const auto* idioma : letrasVersion) {
        ImpresionHoja3 impresion;
        impresion.Idioma(idioma);
        impresion.apartado4.*GetParam().respuesta = QString(QChar(GetParam().letra));
        impresion.EsperaSolo(ValorEsperado(YApartado4, GetParam().xMarca, GetParam().yMarca, cruz));
    }
}

TEST(Apartado4, OtraLetraNoMarcaNada) {
    for (const auto& fila : solicitudes) {
        QString letras;
        for (const auto& otra : solicitudes)
            if (otra.respuesta == fila.respuesta) letras += QChar(otra.letra);
        if (letras.front() != QChar(fila.letra)) continue;
        ImpresionHoja3 impresion;
        for (const QString& letra : OtrasLetras(letras)) {
            SCOPED_TRACE(fila.propiedad + letra.toStdString());
            impresion.apartado4.*fila.respuesta = letra;
            impresion.EsperaNinguno();
        }
    }
}

class CadaCuestion : public testing::TestWithParam<FilaCuestion> {};
INSTANTIATE_TEST_SUITE_P(Apartado5, CadaCuestion, testing::ValuesIn(cuestiones));

TEST_P(CadaCuestion, MarcaSuColumna) {
    for (const auto* idioma : letrasVersion)
        for (const auto& [letra, x] : {std::pair(u"S", 176.0F), std::pair(u"N", 187.0F)}) {
            ImpresionHoja3 impresion;
            impresion.Idioma(idioma);
            impresion.apartado5.*GetParam().propiedad = QString::fromUtf16(letra);
            impresion.EsperaSolo(ValorEsperado(YApartado5, x, GetParam().yMarca, cruz));
        }
}

TEST_P(CadaCuestion, OtraLetraNoMarcaNada) {
    ImpresionHoja3 impresion;
    for (const QString& letra : OtrasLetras(QStringLiteral("SN"))) {
        impresion.apartado5.*GetParam().propiedad = letra;
        impresion.EsperaNinguno();
    }
}

TEST(Hoja3, LoQueNoTieneCasillaNoSeImprime) {
    for (const auto* letra : {u"S", u"N", u"O", u"R", u"E", u"A"}) {
        ImpresionHoja3 impresion;
        const QString valor = QString::fromUtf16(letra);
        impresion.apartado4.IRPFOBJET = valor;
        impresion.apartado4.IVAAGENCIAS = valor;
        impresion.apartado5.IRPFOBJETIVA = valor;
        impresion.apartado5.AGENCIASGLOBAL = valor;
        impresion.EsperaNinguno();
    }
}

class Hoja3EnVersion : public testing::TestWithParam<Version> {
protected:
    ImpresionHoja3 impresion;
    void SetUp() override { impresion.Idioma(letrasVersion[GetParam()]); }
};
INSTANTIATE_TEST_SUITE_P(Versiones, Hoja3EnVersion, testing::Values(Euskera, Castellano),
                         [](const auto& i) { return i.param == Euskera ? "Eus" : "Cas"; });

TEST_P(Hoja3EnVersion, TodasLasMarcasALaVez) {
    for (const auto& c : TablaApartado5()) c.escribir(impresion.apartado5, QStringLiteral("S"));
    for (const auto& s : solicitudes) impresion.apartado4.*s.respuesta = QString(QChar(s.letra));
    EXPECT_EQ(TextosDePagina(impresion.Copia(), 2).count(cruz), 10 + 26);
}

/// A bold value centred in a width; `y` is its top.
TextoEsperado Centrado(float x, float ancho, float y, const QString& texto) {
    return {texto,
            X + x + ancho / 2 - AnchoFijo(texto, 8, true, false) / 2,
            YApartado4 + y,
            8,
            true,
            false,
            QStringLiteral("Arial Narrow")};
}

TEST_P(Hoja3EnVersion, LaEntidadCentradaEnSusDosAnchos) {
    for (const auto* valor : {u"E20123456", u"G1"}) {
        impresion.apartado4.NIF = QString::fromUtf16(valor);
        impresion.EsperaSolo(Centrado(27, 20, 76, QString::fromUtf16(valor)));
    }
    impresion.apartado4.NIF = QString();
    // The longest name runs over both ends of its width.
    for (const QString& nombre : {QStringLiteral("ETXEBERRIA ANAIAK, C.B."), QString(40, u'Ñ')}) {
        impresion.apartado4.NOMBRE = nombre;
        impresion.EsperaSolo(Centrado(77, 40, 76, nombre));
    }
}

TEST_P(Hoja3EnVersion, LaCabeceraLlevaIdentificacionYReferencia) {
    impresion.datos.DNI = QStringLiteral("12345678Z");
    impresion.datos.NOMBRE = QStringLiteral("MUÑOZ ETXEBERRIA, ANE");
    impresion.datos.NumeroArchivo = QStringLiteral("2026000417");
    const Documento& documento = impresion.Copia();
    Trazado trazado(documento, 2);
    trazado.Espera(ValorEsperado(YCabecera3, 2, 5, impresion.datos.DNI, 10));
    trazado.Espera(ValorEsperado(YCabecera3, 44, 5, impresion.datos.NOMBRE, 10));
    trazado.Espera(ValorEsperado(YCabecera3, 155.5F, 5, impresion.datos.NumeroArchivo, 10));
    EXPECT_EQ(Escritos(documento), ImpresionHoja3::Vacia() + 3);
}

TEST(Hoja3, LaReferenciaSoloEstaEnEstaHoja) {
    ImpresionHoja3 impresion;
    impresion.datos.Apartado2 = cruz;
    impresion.datos.NumeroArchivo = QStringLiteral("2026000417");
    const Documento& documento = impresion.Copia();
    ASSERT_EQ(documento.paginasTerminadas, 3);
    for (const int pagina : {1, 2, 3})
        EXPECT_EQ(TextosDePagina(documento, pagina).contains(impresion.datos.NumeroArchivo),
                  pagina == 3);
}

}  // namespace
}  // namespace padral::test
