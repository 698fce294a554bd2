// The values of the fourth page: dates and cause of the cessation, the mark of each answer.

#include <gtest/gtest.h>

#include "page4_expected_states.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

const QString cruz = QStringLiteral("X");

qsizetype Escritos(const Documento& documento) {
    qsizetype escritos = 0;
    for (const QString& texto : TextosDePagina(documento, 2))
        if (!texto.trimmed().isEmpty()) ++escritos;
    return escritos;
}

struct ImpresionHoja4 : Impresion {
    ImpresionHoja4() { datos.Apartado6 = cruz; }
    static qsizetype Vacia() {
        static const qsizetype vacia = Escritos(ImpresionHoja4().Copia());
        return vacia;
    }
    /// The fourth page shows that value there, so often, and no other value.
    void EsperaSolo(const TextoEsperado& valor, int veces = 1) {
        const Documento& documento = Copia();
        Trazado trazado(documento, 2);
        for (int vez = 0; vez < veces; ++vez) trazado.Espera(valor);
        EXPECT_EQ(Escritos(documento), Vacia() + veces) << valor.texto.toStdString();
    }
    void EsperaNinguno() { EXPECT_EQ(Escritos(Copia()), Vacia()); }
};

/// Any value but those letters, small ones, blanks and longer texts among them.
std::vector<QString> OtrosValores(const QString& letras) {
    std::vector<QString> otros = {QString(), QStringLiteral(" "), letras + u' ', u' ' + letras};
    for (char16_t c = u'0'; c <= u'z'; ++c)
        if (!letras.contains(QChar(c))) otros.emplace_back(QChar(c));
    return otros;
}

// -------------------------------------------------------------------------------- section 6

struct FilaFecha {
    qint32 DatosApartado6::*propiedad;
    float x;
};
const FilaFecha fechas[] = {{&DatosApartado6::FECHACESE, 9},
                            {&DatosApartado6::FechaInscripcion, 50}};

TEST(Apartado6Impreso, CadaFechaEnElOrdenDelIdioma) {
    for (const auto& [letra, texto] :
         {std::pair(u"C", u"07/03/2026"), std::pair(u"E", u"2026/03/07")})
        for (const auto& fila : fechas) {
            ImpresionHoja4 impresion;
            impresion.Idioma(letra);
            impresion.apartado6.*fila.propiedad = 20260307;
            impresion.EsperaSolo(ValorRomano(YApartado6, fila.x, 11.5F, QString::fromUtf16(texto)));
        }
}

TEST(Apartado6Impreso, UnNumeroQueNoEsFechaSaleSinRellenar) {
    for (const auto& [letra, texto] :
         {std::pair(u"C", u"__/__/____"), std::pair(u"E", u"____/__/__")})
        for (const auto& fila : fechas) {
            ImpresionHoja4 impresion;
            impresion.Idioma(letra);
            impresion.apartado6.*fila.propiedad = 20150230;
            impresion.EsperaSolo(ValorRomano(YApartado6, fila.x, 11.5F, QString::fromUtf16(texto)));
        }
}

struct FilaCausa {
    qint16 codigo;
    const char16_t *castellano, *euskera;
};
void PrintTo(const FilaCausa& fila, std::ostream* salida) { *salida << fila.codigo; }
class CadaCausa : public testing::TestWithParam<FilaCausa> {};
INSTANTIATE_TEST_SUITE_P(
    Apartado6Impreso, CadaCausa,
    testing::Values(FilaCausa{10, u"CESE DE ACTIVIDAD", u"JARDUERA UZTEA"},
                    FilaCausa{11, u"FALLECIMIENTO", u"HERIOTZA"},
                    FilaCausa{20, u"CESE SIN DISOLUCION", u"DESEGIN GABEKO UZTEA"},
                    FilaCausa{22, u"TRASPASO", u"ESKUALDAKETA"},
                    FilaCausa{30, u"DISOLUCION", u"DESEGITEA"},
                    FilaCausa{31, u"FUSION", u"BATEGITEA"}, FilaCausa{32, u"ESCISION", u"ZATIKETA"},
                    FilaCausa{33, u"LIQUIDACION", u"LIKIDAZIOA"},
                    FilaCausa{99, u"OTRAS CAUSAS", u"BESTE ARRAZOI BATZUK"}));

TEST_P(CadaCausa, ConElTextoDelCatalogo) {
    const auto& fila = GetParam();
    for (const auto& [letra, texto] :
         {std::pair(u"C", fila.castellano), std::pair(u"E", fila.euskera)}) {
        ImpresionHoja4 impresion;
        impresion.Idioma(letra);
        impresion.almacen->PonerCatalogo();
        impresion.apartado6.CAUSA = fila.codigo;
        // With a cause the description does not print, not even with 99.
        impresion.apartado6.DESCRIPCIONCAUSA = QStringLiteral("JUBILACIÓN");
        impresion.EsperaSolo(ValorRomano(YApartado6, 85, 12, QString::fromUtf16(texto)));
    }
}

TEST(Apartado6Impreso, SinCausaLaDescripcionMasArribaYComoEsta) {
    for (const auto* letra : {u"C", u"E"})
        for (const auto* texto : {u"JUBILACIÓN          ", u"  CIERRE Y REFORMA  "}) {
            ImpresionHoja4 impresion;
            impresion.Idioma(letra);
            impresion.apartado6.DESCRIPCIONCAUSA = QString::fromUtf16(texto);
            impresion.EsperaSolo(ValorRomano(YApartado6, 85, 9, QString::fromUtf16(texto)));
        }
}

TEST(Apartado6Impreso, UnaCausaDesconocidaNoTieneTexto) {
    ImpresionHoja4 impresion;
    impresion.Idioma(u"C");
    impresion.almacen->PonerCatalogo();
    impresion.apartado6.CAUSA = 98;
    impresion.EsperaNinguno();
}

// The page prints whole for either mark.
TEST(Apartado6Impreso, TambienConSoloElApartado7) {
    for (const auto& [codigo, y, causa] :
         {std::tuple(0, 9.0F, u"JUBILACIÓN          "), std::tuple(33, 12.0F, u"LIQUIDACION")}) {
        ImpresionHoja4 impresion;
        impresion.Idioma(u"C");
        impresion.almacen->PonerCatalogo();
        impresion.datos.Apartado6 = QString();
        impresion.datos.Apartado7 = cruz;
        impresion.apartado6.FECHACESE = 20150331;
        impresion.apartado6.FechaInscripcion = 20150401;
        impresion.apartado6.CAUSA = static_cast<qint16>(codigo);
        impresion.apartado6.DESCRIPCIONCAUSA = QStringLiteral("JUBILACIÓN");
        const Documento& documento = impresion.Copia();
        Trazado trazado(documento, 2);
        trazado.Espera(ValorRomano(YApartado6, 9, 11.5F, QStringLiteral("31/03/2015")));
        trazado.Espera(ValorRomano(YApartado6, 50, 11.5F, QStringLiteral("01/04/2015")));
        trazado.Espera(ValorRomano(YApartado6, 85, y, QString::fromUtf16(causa)));
        EXPECT_EQ(Escritos(documento), ImpresionHoja4::Vacia() + 3);
    }
}

// -------------------------------------------------------------------------------- section 7

class CadaEstado : public testing::TestWithParam<FilaEstadoImpreso> {};
INSTANTIATE_TEST_SUITE_P(Apartado7, CadaEstado, testing::ValuesIn(estadosImpresos));

TEST_P(CadaEstado, MarcaCadaColumnaEnSuFila) {
    for (const auto& columna : columnas) {
        ImpresionHoja4 impresion;
        (impresion.apartado7.*columna.respuesta)[GetParam().sufijo - 1] = QChar(columna.letra);
        impresion.EsperaSolo(ValorRomano(YApartado7, columna.xMarca, GetParam().yMarca, cruz));
    }
}

TEST_P(CadaEstado, OtroValorNoMarcaNada) {
    ImpresionHoja4 impresion;
    for (const QString& valor : OtrosValores(QStringLiteral("SNDR"))) {
        SCOPED_TRACE(valor.toStdString());
        impresion.apartado7.LimSupPais[GetParam().sufijo - 1] = valor;
        impresion.apartado7.DestRevocPais[GetParam().sufijo - 1] = valor;
        impresion.EsperaNinguno();
    }
}

TEST(Apartado7Impreso, LaLetraEligeLaColumnaSeaCualSeaLaRespuesta) {
    for (const auto& columna : columnas) {
        ImpresionHoja4 impresion;
        const TextoEsperado marca = ValorRomano(YApartado7, columna.xMarca, 50, cruz);
        impresion.apartado7.LimSupPais[24] = QChar(columna.letra);
        impresion.EsperaSolo(marca);
        impresion.apartado7.DestRevocPais[24] = QChar(columna.letra);
        impresion.EsperaSolo(marca, 2);
        impresion.apartado7.LimSupPais[24] = QString();
        impresion.EsperaSolo(marca);
    }
}

TEST(Apartado7Impreso, TodosLosEstadosALaVez) {
    for (const auto& [limite, destino] : {std::pair(0, 2), std::pair(1, 3), std::pair(0, 3)}) {
        ImpresionHoja4 impresion;
        impresion.apartado7.LimSupPais.fill(QChar(columnas[limite].letra));
        impresion.apartado7.DestRevocPais.fill(QChar(columnas[destino].letra));
        const Documento& documento = impresion.Copia();
        Trazado trazado(documento, 2);
        for (const auto& e : estadosImpresos)
            for (const int columna : {limite, destino})
                trazado.Espera(ValorRomano(YApartado7, columnas[columna].xMarca, e.yMarca, cruz));
        EXPECT_EQ(Escritos(documento), ImpresionHoja4::Vacia() + 2 * 27);
    }
}

class CadaCasilla7 : public testing::TestWithParam<FilaCasilla7> {};
INSTANTIATE_TEST_SUITE_P(Apartado7, CadaCasilla7, testing::ValuesIn(casillas7));

TEST_P(CadaCasilla7, MarcaSuCuadro) {
    const auto& fila = GetParam();
    // The form prints the mark of 122 three times over.
    const int veces = QStringView(fila.numero) == u"122" ? 3 : 1;
    for (const auto* letra : {u"C", u"E"}) {
        ImpresionHoja4 impresion;
        impresion.Idioma(letra);
        impresion.apartado7.*fila.propiedad = QChar(fila.letra);
        impresion.EsperaSolo(ValorRomano(YApartado7, fila.xMarca, fila.yMarca, cruz), veces);
    }
}

TEST_P(CadaCasilla7, OtroValorNoMarcaNada) {
    QString letras;
    for (const auto& otra : casillas7)
        if (otra.propiedad == GetParam().propiedad) letras += QChar(otra.letra);
    ImpresionHoja4 impresion;
    for (const QString& valor : OtrosValores(letras)) {
        SCOPED_TRACE(valor.toStdString());
        impresion.apartado7.*GetParam().propiedad = valor;
        impresion.EsperaNinguno();
    }
}

TEST(Hoja4, LaIdentificacion) {
    ImpresionHoja4 impresion;
    impresion.datos.DNI = QStringLiteral("12345678Z");
    impresion.datos.NOMBRE = QStringLiteral("MUÑOZ ETXEBERRIA, ANE");
    const Documento& documento = impresion.Copia();
    Trazado trazado(documento, 2);
    trazado.Espera(ValorRomano(YIdentificacion4, 2, 9, impresion.datos.DNI, 10));
    trazado.Espera(ValorRomano(YIdentificacion4, 41, 9, impresion.datos.NOMBRE, 10));
    EXPECT_EQ(Escritos(documento), ImpresionHoja4::Vacia() + 2);
}

}  // namespace
}  // namespace padral::test
