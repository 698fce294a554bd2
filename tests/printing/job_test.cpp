// Which copies are printed, in which order, and what becomes of them when the printer fails.

#include "printing/job.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

struct FilaOpciones {
    bool borrador, administracion, interesado;
    bool validas;
    QStringList copias;
};
const FilaOpciones filasOpciones[] = {
    {false, true, true, true, {QStringLiteral("AD"), QStringLiteral("IT")}},
    {false, true, false, true, {QStringLiteral("AD")}},
    {false, false, true, true, {QStringLiteral("IT")}},
    {false, false, false, false, {}},
    {true, true, true, true, {QStringLiteral("BO")}},
    {true, false, false, true, {QStringLiteral("BO")}},
};

TEST(Copias, ValidasYPedidas) {
    for (const auto& fila : filasOpciones) {
        const OpcionesImpresion opciones = {fila.borrador, fila.administracion, fila.interesado};
        EXPECT_EQ(ValidarCopias(opciones), fila.validas);
        EXPECT_EQ(CopiasPedidas(opciones), fila.copias);
    }
}

struct FilaCopia {
    const char16_t *tipo, *imagen;
};
void PrintTo(const FilaCopia& fila, std::ostream* salida) {
    *salida << QString::fromUtf16(fila.tipo).toStdString();
}

class CadaCopia : public testing::TestWithParam<FilaCopia> {};
TEST_P(CadaCopia, UnaPaginaConSuTitulo) {
    Impresion impresion;
    impresion.datos.DNI = QStringLiteral("12345678Z");
    const QString tipo = QString::fromUtf16(GetParam().tipo);
    const Documento& documento = impresion.Copia(tipo);
    EXPECT_EQ(documento.paginasTerminadas, 1);
    EXPECT_TRUE(documento.cerrado);
    EXPECT_TRUE(documento.destruido);
    EXPECT_EQ(documento.titulo, QStringLiteral("417-12345678Z-") + tipo);
    // The stamp is the last thing on the page.
    EXPECT_EQ(documento.operaciones.back().texto, QString::fromUtf16(GetParam().imagen));
}
INSTANTIATE_TEST_SUITE_P(Cinco, CadaCopia,
                         testing::Values(FilaCopia{u"AD", u"Administracion"},
                                         FilaCopia{u"IT", u"Interesado"},
                                         FilaCopia{u"BO", u"Borrador"}, FilaCopia{u"BA", u"Banco"},
                                         FilaCopia{u"IF", u"Informatica"}));

TEST(ImprimirDeclaracion, LasCopiasSoloSeDistinguenEnElTitulo) {
    Impresion impresion;
    for (const auto* tipo : {u"AD", u"IT", u"BO"}) impresion.Copia(QString::fromUtf16(tipo));
    ASSERT_EQ(impresion.fabrica.documentos.size(), 3U);
    const auto& primera = impresion.fabrica.documentos[0]->operaciones;
    for (const auto& documento : impresion.fabrica.documentos) {
        ASSERT_EQ(documento->operaciones.size(), primera.size());
        for (std::size_t i = 0; i + 1 < primera.size(); ++i)
            EXPECT_EQ(documento->operaciones[i].texto, primera[i].texto);
    }
}

struct FilaSecciones {
    const char16_t *primero, *segundo;  ///< marks of the two sections of a page
    int paginas;
};
const FilaSecciones secciones[] = {
    {u"", u"", 1},  {u" ", u" ", 1}, {u"x", u"S", 1}, {u"XX", u" X", 1},
    {u"X", u"", 2}, {u"X", u" ", 2}, {u" ", u"X", 2}, {u"X", u"X", 2},
};

TEST(ImprimirDeclaracion, LaHoja2ConElApartado2OEl3) {
    for (const auto& fila : secciones) {
        Impresion impresion;
        impresion.datos.Apartado2 = QString::fromUtf16(fila.primero);
        impresion.datos.Apartado3 = QString::fromUtf16(fila.segundo);
        EXPECT_EQ(impresion.Copia().paginasTerminadas, fila.paginas);
    }
}

TEST(ImprimirDeclaracion, LaHoja3ConElApartado4OEl5) {
    for (const auto& fila : secciones) {
        Impresion impresion;
        impresion.datos.Apartado4 = QString::fromUtf16(fila.primero);
        impresion.datos.Apartado5 = QString::fromUtf16(fila.segundo);
        EXPECT_EQ(impresion.Copia().paginasTerminadas, fila.paginas);
    }
}

TEST(ImprimirDeclaracion, LaHoja4ConElApartado6OEl7) {
    for (const auto& fila : secciones) {
        Impresion impresion;
        impresion.datos.Apartado6 = QString::fromUtf16(fila.primero);
        impresion.datos.Apartado7 = QString::fromUtf16(fila.segundo);
        EXPECT_EQ(impresion.Copia().paginasTerminadas, fila.paginas);
    }
}

/// Titles of the sections, and stamps, with the page on which they stand.
QStringList Recorrido(const Documento& documento) {
    QStringList recorrido;
    for (const auto& o : documento.operaciones) {
        const bool sello = o.tipo == Operacion::Imagen && o.desde.x > 190;
        const bool titulo = o.tipo == Operacion::Texto &&
                            (o.texto.contains(u"ATALA: ") || o.texto.contains(u"ATALA, ") ||
                             o.texto.startsWith(u"APARTADO "));
        if (sello || titulo) recorrido << QStringLiteral("%1 %2").arg(o.pagina).arg(o.texto);
    }
    return recorrido;
}

TEST(ImprimirDeclaracion, LasHojasVanEnSuOrdenEnCadaCopia) {
    Impresion impresion;
    impresion.datos.Apartado3 = QStringLiteral("X");
    impresion.datos.Apartado5 = QStringLiteral("X");
    impresion.datos.Apartado6 = QStringLiteral("X");
    for (const auto& [tipo, sello] :
         {std::pair(u"AD", u"Administracion"), std::pair(u"IT", u"Interesado"),
          std::pair(u"BO", u"Borrador")}) {
        const QString nombre = QString::fromUtf16(sello);
        const QStringList esperado = {
            QStringLiteral("1 1.ATALA: AURKEZPENAREN ARRAZOIA"),
            QStringLiteral("1 ") + nombre,
            QStringLiteral("2 2. ATALA: KOKALEKUA"),
            QStringLiteral("2 3.ATALA: PADRALKO BESTELAKO DATUAK"),
            QStringLiteral("2 ") + nombre,
            QStringLiteral("3 APARTADO 4: SOLICITUDES ESPECIFICAS"),
            QStringLiteral("3 APARTADO 5: SITUACIÓN TRIBUTARIA Y DECLARACIONES LIQUIDACIONES"),
            QStringLiteral("3 ") + nombre,
            QStringLiteral("4 6.ATALA: AMIERA"),
            QStringLiteral("4 7. ATALA, BATASUNAREN BARRUKO ERAGIKETAK"),
            QStringLiteral("4 ") + nombre};
        const Documento& documento = impresion.Copia(QString::fromUtf16(tipo));
        EXPECT_EQ(Recorrido(documento), esperado);
        EXPECT_TRUE(documento.cerrado);
    }
}

TEST(ImprimirDeclaracion, UnaCopiaDesconocidaFallaAlEstampar) {
    for (const auto* tipo : {u"", u"XX", u"ad"}) {
        Impresion impresion;
        EXPECT_THROW(impresion.Copia(QString::fromUtf16(tipo)), Fallo);
        const Documento& documento = *impresion.fabrica.documentos.back();
        EXPECT_FALSE(documento.operaciones.empty());
        EXPECT_EQ(documento.paginasTerminadas, 0);
        EXPECT_FALSE(documento.cerrado);
    }
}

TEST(ImprimirDeclaracion, UnaImpresoraQueFallaNoSeCalla) {
    Impresion impresion;
    impresion.fabrica.documentoQueFalla = 0;
    impresion.fabrica.fallaEn = 40;
    try {
        impresion.Copia();
        FAIL() << "the failure got lost";
    } catch (const Fallo& fallo) {
        EXPECT_EQ(fallo.Castellano(), u"La impresora no responde.");
        EXPECT_EQ(fallo.Euskera(), u"Inprimagailuak ez du erantzuten.");
    }
    const Documento& documento = *impresion.fabrica.documentos.back();
    EXPECT_EQ(documento.operaciones.size(), 39U);
    EXPECT_TRUE(documento.destruido);
}

TEST(ImprimirDeclaracion, LaCopiaAnteriorQuedaEnviada) {
    Impresion impresion;
    impresion.fabrica.documentoQueFalla = 1;
    impresion.fabrica.fallaEn = 1;
    impresion.Copia(QStringLiteral("AD"));
    EXPECT_THROW(impresion.Copia(QStringLiteral("IT")), Fallo);
    EXPECT_TRUE(impresion.fabrica.documentos[0]->cerrado);
    EXPECT_EQ(impresion.fabrica.documentos[0]->paginasTerminadas, 1);
}

TEST(ImprimirDeclaracion, NoCambiaLosDatos) {
    Impresion impresion;
    impresion.datos.Causa1 = QStringLiteral("M");
    impresion.datos.FechaModificacion(20151231);
    const Fila antes = impresion.datos.ObtenerDatos();
    impresion.Copia();
    EXPECT_EQ(impresion.datos.ObtenerDatos(), antes);
}

TEST(ImprimirDeclaracion, NoCambiaLosApartados2Y3) {
    Impresion impresion;
    impresion.datos.Apartado2 = QStringLiteral("X");
    impresion.apartado2.Soc.NombreDomicilio = QStringLiteral("Mayor");
    impresion.apartado2.ElMismoSoc = QStringLiteral("X");
    impresion.apartado3.ActivEcon = QStringLiteral("9999999");
    const DatosApartado2 antes2 = impresion.apartado2;
    const DatosApartado3 antes3 = impresion.apartado3;
    impresion.Copia();
    EXPECT_EQ(impresion.apartado2, antes2);
    EXPECT_EQ(impresion.apartado3, antes3);
}

TEST(ImprimirDeclaracion, NoCambiaLosApartados4Y5) {
    Impresion impresion;
    impresion.datos.Apartado4 = QStringLiteral("X");
    impresion.apartado4.IVASOCIO = QStringLiteral("S");
    impresion.apartado4.NOMBRE = QStringLiteral("Etxeberria Anaiak");
    impresion.apartado5.IVA = QStringLiteral("N");
    const DatosApartado4 antes4 = impresion.apartado4;
    const RespuestasApartado5 antes5 = impresion.apartado5;
    impresion.Copia();
    EXPECT_EQ(impresion.apartado4, antes4);
    EXPECT_EQ(impresion.apartado5, antes5);
}

TEST(ImprimirDeclaracion, NoCambiaLosApartados6Y7) {
    Impresion impresion;
    impresion.datos.Apartado6 = QStringLiteral("X");
    impresion.apartado6.FECHACESE = 20151231;
    impresion.apartado6.DESCRIPCIONCAUSA = QStringLiteral("JUBILACIÓN");
    impresion.apartado7.LimSupPais[24] = QStringLiteral("S");
    impresion.apartado7.Agric = QStringLiteral("S");
    const DatosApartado6 antes6 = impresion.apartado6;
    const DatosApartado7 antes7 = impresion.apartado7;
    impresion.Copia();
    EXPECT_EQ(impresion.apartado6, antes6);
    EXPECT_EQ(impresion.apartado7, antes7);
}

}  // namespace
}  // namespace padral::test
