// The empty third page in both languages: every rule, frame, number, caption and picture, nothing
// else.

#include <gtest/gtest.h>

#include "page3_expected_questions.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

constexpr Version versiones[] = {Euskera, Castellano};
constexpr qint32 Limite = 20090101;

struct ImpresionHoja3 : Impresion {
    explicit ImpresionHoja3(Version version) {
        Idioma(letrasVersion[version]);
        datos.Apartado5 = QStringLiteral("X");
    }
};

void EsperaHoja3(const Documento& documento, int pagina, Version version, bool desde2009) {
    Trazado trazado(documento, pagina);
    EsperaBloque(trazado, CabeceraEsperada3(version));
    EsperaBloque(trazado, Apartado4Esperado(version, desde2009));
    EsperaBloque(trazado, Apartado5Esperado(version));
    trazado.EsperaImagen(QStringLiteral("Administracion"), 193.5F, 125);
    trazado.QuitaTextosVacios();
    trazado.EsperaNadaMas();
}

TEST(Hoja3, PaginaVaciaEnCadaIdioma) {
    for (const Version version : versiones) {
        SCOPED_TRACE(version);
        ImpresionHoja3 impresion(version);
        EsperaHoja3(impresion.Copia(), 2, version, false);
    }
}

TEST(Hoja3, ElPrimerRotuloDependeDeLaFecha) {
    const std::pair<qint32, bool> fechas[] = {
        {0, false},     {20081231, false},  {Limite - 1, false},
        {Limite, true}, {Limite + 1, true}, {20260131, true},
    };
    for (const Version version : versiones)
        for (const auto& [fecha, desde2009] : fechas) {
            SCOPED_TRACE(fecha);
            ImpresionHoja3 impresion(version);
            impresion.datos.FECHADECLARACION = fecha;
            EsperaHoja3(impresion.Copia(), 2, version, desde2009);
        }
}

TEST(Hoja3, LaFechaNoCambiaNadaMas) {
    for (const Version version : versiones) {
        ImpresionHoja3 antes(version);
        ImpresionHoja3 despues(version);
        antes.datos.FECHADECLARACION = Limite - 1;
        despues.datos.FECHADECLARACION = Limite;
        const QStringList textosAntes = TextosDePagina(antes.Copia(), 2);
        const QStringList textosDespues = TextosDePagina(despues.Copia(), 2);
        ASSERT_EQ(textosAntes.size(), textosDespues.size());
        int distintos = 0;
        for (qsizetype i = 0; i < textosAntes.size(); ++i)
            if (textosAntes[i] != textosDespues[i]) ++distintos;
        EXPECT_EQ(distintos, 1);
    }
}

TEST(Hoja3, SoloLaLetraEEsEuskera) {
    for (const auto* letra : {u"C", u"e", u"X", u" "}) {
        ImpresionHoja3 impresion(Euskera);
        impresion.Idioma(letra);
        EsperaHoja3(impresion.Copia(), 2, Castellano, false);
    }
}

TEST(Hoja3, ElIdiomaEsElDeCadaCopia) {
    ImpresionHoja3 impresion(Castellano);
    EsperaHoja3(impresion.Copia(), 2, Castellano, false);
    impresion.Idioma(u"E");
    EsperaHoja3(impresion.Copia(), 2, Euskera, false);
}

TEST(Hoja3, DespuesDeLaHoja2EsLaMisma) {
    for (const Version version : versiones) {
        ImpresionHoja3 impresion(version);
        impresion.datos.Apartado2 = QStringLiteral("X");
        EsperaHoja3(impresion.Copia(), 3, version, false);
    }
}

TEST(Hoja3, LaPlumaGruesaEsSoloDeLosTresMarcos) {
    ImpresionHoja3 impresion(Castellano);
    int gruesas = 0;
    for (const auto& o : impresion.Copia().operaciones) {
        if (o.pagina != 2 || o.tipo == Operacion::Texto || o.tipo == Operacion::Imagen) continue;
        if (o.estado.pluma != 6) continue;
        ++gruesas;
        EXPECT_EQ(o.tipo, Operacion::Caja);
    }
    EXPECT_EQ(gruesas, 3);
}

TEST(Hoja3, LasCasillasAntiguasNoEstan) {
    for (const Version version : versiones) {
        ImpresionHoja3 impresion(version);
        const QStringList textos = TextosDePagina(impresion.Copia(), 2);
        for (const auto* numero : {u"57", u"58", u"59", u"77", u"78", u"99", u"106"})
            EXPECT_FALSE(textos.contains(QString::fromUtf16(numero)));
    }
}

}  // namespace
}  // namespace padral::test
