// The values of the census data: each property in its box, under its rule.

#include <gtest/gtest.h>

#include "page2_expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

const QString cruz = QStringLiteral("X");

/// Texts of the second page that are not empty, without the mark of box 261.
qsizetype Escritos(const Documento& documento) {
    QStringList textos = TextosDePagina(documento, 2);
    textos.removeAll(QString());
    return textos.size() - 1;
}

struct ImpresionHoja2 : Impresion {
    ImpresionHoja2() { datos.Apartado3 = cruz; }
    static qsizetype Vacia() {
        ImpresionHoja2 impresion;
        return Escritos(impresion.Copia());
    }
    /// The second page shows that value there and no other value.
    void EsperaSolo(float x, float y, const QString& texto, float cuerpo = 8) {
        const Documento& documento = Copia();
        Trazado(documento, 2).Espera(ValorEsperado(YApartado3, x, y, texto, cuerpo));
        EXPECT_EQ(Escritos(documento), Vacia() + 1) << texto.toStdString();
    }
};

struct FilaLetra {
    const char* propiedad;
    Letra DatosApartado3::*letra;
    const char16_t* valor;
    float x, y;
};
void PrintTo(const FilaLetra& fila, std::ostream* salida) {
    *salida << fila.propiedad << QString::fromUtf16(fila.valor).toStdString();
}
const FilaLetra letras[] = {
    {"ResidenteKelmaria", &DatosApartado3::ResidenteKelmaria, u"S", 67, 9.5F},
    {"ResidenteKelmaria", &DatosApartado3::ResidenteKelmaria, u"N", 84, 9.5F},
    {"IdiomaPref", &DatosApartado3::IdiomaPref, u"E", 27.5F, 30},
    {"IdiomaPref", &DatosApartado3::IdiomaPref, u"C", 71.5F, 30},
    {"MedioPref", &DatosApartado3::MedioPref, u"P", 125.5F, 30},
    {"MedioPref", &DatosApartado3::MedioPref, u"E", 166.5F, 30},
    {"Correo", &DatosApartado3::Correo, u"A", 12, 40.5F},
    {"Correo", &DatosApartado3::Correo, u"B", 22, 40.5F},
    {"Fax", &DatosApartado3::Fax, u"A", 108, 40.5F},
    {"Fax", &DatosApartado3::Fax, u"B", 118, 40.5F},
    {"Fijo", &DatosApartado3::Fijo, u"A", 12, 50.5F},
    {"Fijo", &DatosApartado3::Fijo, u"B", 22, 50.5F},
    {"Movil", &DatosApartado3::Movil, u"A", 108.5F, 50.5F},
    {"Movil", &DatosApartado3::Movil, u"B", 118.5F, 50.5F},
    {"Consentimiento", &DatosApartado3::Consentimiento, u"S", 166, 61},
    {"Revocacion", &DatosApartado3::Revocacion, u"S", 166, 72},
};

class Respuesta : public testing::TestWithParam<FilaLetra> {};
INSTANTIATE_TEST_SUITE_P(Las, Respuesta, testing::ValuesIn(letras));

TEST_P(Respuesta, MarcaSuCuadro) {
    ImpresionHoja2 impresion;
    impresion.apartado3.*GetParam().letra = QString::fromUtf16(GetParam().valor);
    impresion.EsperaSolo(GetParam().x, GetParam().y, cruz);
}

TEST_P(Respuesta, OtraLetraNoMarca) {
    ImpresionHoja2 impresion;
    for (const auto* otra : {u"", u" ", u"X", u"Z", u"s", u"a"}) {
        impresion.apartado3.*GetParam().letra = QString::fromUtf16(otra);
        EXPECT_EQ(Escritos(impresion.Copia()), ImpresionHoja2::Vacia());
    }
}

struct FilaTextoPropiedad {
    QString DatosApartado3::*propiedad;
    float x, y, cuerpo;
};
const FilaTextoPropiedad textos[] = {
    {&DatosApartado3::ListaEpigrafe, 2, 23, 6},
    {&DatosApartado3::ActivEcon, 98, 22.5F, 8},
    {&DatosApartado3::DirCorreo, 36, 40.5F, 8},
    {&DatosApartado3::DescripcionFormaJuridica, 2, 97, 6},
};

TEST(Apartado3, CadaTextoEnSuCasilla) {
    for (const auto& fila : textos)
        for (const auto* valor : {u"1651200", u"Ñ & a@b.es, más largo que ninguna de las casillas",
                                  u"999999", u" 9999999"}) {
            ImpresionHoja2 impresion;
            impresion.apartado3.*fila.propiedad = QString::fromUtf16(valor);
            impresion.EsperaSolo(fila.x, fila.y, QString::fromUtf16(valor), fila.cuerpo);
        }
}

TEST(Apartado3, SinEpigrafeNoHayCodigoYSiDescripcion) {
    ImpresionHoja2 impresion;
    impresion.apartado3.ActivEcon = QStringLiteral("9999999");
    impresion.apartado3.ListaEpigrafe = QStringLiteral("Afilador");
    impresion.EsperaSolo(2, 23, QStringLiteral("Afilador"), 6);
}

struct FilaNumeroPropiedad {
    qint32 DatosApartado3::*propiedad;
    float x, y;
};
const FilaNumeroPropiedad numeros[] = {
    {&DatosApartado3::numFax, 132, 40.5F},
    {&DatosApartado3::numFijo, 36, 50.5F},
    {&DatosApartado3::numMovil, 132, 50.5F},
};

TEST(Apartado3, LosNumerosSonCifrasSinGrupos) {
    for (const auto& fila : numeros)
        for (const qint32 numero : {1, 943112233, 999999999}) {
            ImpresionHoja2 impresion;
            impresion.apartado3.*fila.propiedad = numero;
            impresion.EsperaSolo(fila.x, fila.y, QString::number(numero));
        }
}

TEST(Apartado3, LosCerosNoSeEscriben) {
    ImpresionHoja2 impresion;
    const QStringList escritos = TextosDePagina(impresion.Copia(), 2);
    for (const auto* cero : {u"0", u"0 %", u"00/00", u"00/0", u"__/__/____"})
        EXPECT_FALSE(escritos.contains(QString::fromUtf16(cero)));
}

TEST(Apartado3, ElPorcentajeAcabaEnSuSitio) {
    for (const auto& [valor, texto] :
         {std::pair(1, u"1 %"), std::pair(25, u"25 %"), std::pair(100, u"100 %")}) {
        ImpresionHoja2 impresion;
        impresion.apartado3.PorcenDeduccion = valor;
        const Documento& documento = impresion.Copia();
        const QString escrito = QString::fromUtf16(texto);
        const float ancho = 0.22F * 8 * static_cast<float>(escrito.size());
        Trazado(documento, 2)
            .Espera({escrito, 187 - ancho, YApartado3 + 9, 8, true, false,
                     QStringLiteral("Arial Narrow")});
        EXPECT_EQ(Escritos(documento), ImpresionHoja2::Vacia() + 1);
    }
}

TEST(Apartado3, UnPorcentajeQueNoPasaDeCeroNoSeEscribe) {
    for (const qint32 valor : {0, -1}) {
        ImpresionHoja2 impresion;
        impresion.apartado3.PorcenDeduccion = valor;
        EXPECT_EQ(Escritos(impresion.Copia()), ImpresionHoja2::Vacia());
    }
}

TEST(Apartado3, LaFechaDeInicioEnElOrdenDelIdioma) {
    ImpresionHoja2 impresion;
    impresion.apartado3.FechaInicio = 20260131;
    impresion.EsperaSolo(133, 22.5F, QStringLiteral("31/01/2026"));
    impresion.estado.fecha.fecidioma = QStringLiteral("E");
    impresion.EsperaSolo(133, 22.5F, QStringLiteral("2026/01/31"));
}

TEST(Apartado3, ElCierreConElMesDelante) {
    for (const auto& [valor, texto] : {std::pair(1231, u"12/31"), std::pair(131, u"01/31"),
                                       std::pair(1001, u"10/01"), std::pair(229, u"02/29")})
        for (const auto* idioma : {u"C", u"E"}) {
            ImpresionHoja2 impresion;
            impresion.estado.fecha.fecidioma = QString::fromUtf16(idioma);
            impresion.apartado3.FechaCierre = valor;
            impresion.EsperaSolo(93.5F, 97, QString::fromUtf16(texto));
        }
}

TEST(Apartado3, La261SiempreMarcaUnoDeLosDos) {
    for (const auto* valor : {u"X", u"", u" ", u"x", u"S", u"N", u"XX"}) {
        ImpresionHoja2 impresion;
        impresion.apartado3.SocPat = QString::fromUtf16(valor);
        const Documento& documento = impresion.Copia();
        const bool marcada = impresion.apartado3.SocPat == cruz;
        Trazado(documento, 2).Espera(ValorEsperado(YApartado3, marcada ? 121 : 135, 78, cruz));
        EXPECT_EQ(TextosDePagina(documento, 2).count(cruz), 1);
    }
}

TEST(Apartado3, La264SoloSiEstaMarcada) {
    ImpresionHoja2 impresion;
    for (const auto* valor : {u"", u" ", u"S", u"x"}) {
        impresion.apartado3.ActVenMov = QString::fromUtf16(valor);
        EXPECT_EQ(Escritos(impresion.Copia()), ImpresionHoja2::Vacia());
    }
    impresion.apartado3.ActVenMov = cruz;
    impresion.EsperaSolo(155.5F, 83.5F, cruz);
}

TEST(Apartado3, LoQueNoTieneCasillaNoSeImprime) {
    ImpresionHoja2 impresion;
    impresion.apartado3.Anagrama = QStringLiteral("Anagrama");
    impresion.apartado3.CodigoFormaJuridica = 90;
    impresion.apartado3.Act.NombreDomicilio = QStringLiteral("Mayor");
    impresion.apartado3.Soc.Telefono = 943112233;
    EXPECT_EQ(Escritos(impresion.Copia()), ImpresionHoja2::Vacia());
}

TEST(Apartado3, LaIdentificacionSeRepite) {
    ImpresionHoja2 impresion;
    impresion.datos.DNI = QStringLiteral("12345678Z");
    impresion.datos.NOMBRE = QStringLiteral("ETXEBERRIA AGIRRE, ANE");
    Trazado trazado(impresion.Copia(), 2);
    trazado.Espera(ValorEsperado(35.5F, 2, 9, impresion.datos.DNI, 10));
    trazado.Espera(ValorEsperado(35.5F, 41, 9, impresion.datos.NOMBRE, 10));
}

}  // namespace
}  // namespace padral::test
