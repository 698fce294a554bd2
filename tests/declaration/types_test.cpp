// Taking and giving up a type: the question, what it clears, what it marks.

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"
#include "declaration/section_boxes.h"

namespace padral::pruebas {
namespace {

QString banderas(const cDatosGenerales& g) { return g.ObtenerDatos()[12].toString(); }

class Tipos : public ConDeclaracion {
protected:
    QString texto(const std::optional<PreguntaBorrado>& pregunta) {
        return pregunta ? pregunta->titulo + u'|' + pregunta->texto : QString();
    }
    QString lista(const QString& apartados) {
        return apartados.isEmpty()
                   ? QString()
                   : estado.Texto(535) + u'|' + estado.Texto(655) + apartados + estado.Texto(656);
    }
    void todasLasBanderas() {
        for (const auto& c : CasillasApartado()) g.*c.bandera = QStringLiteral("X");
    }
};

TEST_F(Tipos, CuatroCasillasConSuTextoYLetra) {
    const auto casillas = CasillasTipo();
    const struct {
        const char16_t* nombre;
        int caption;
        char16_t letra;
    } esperadas[] = {{u"chkDeclaracionPrevia", 443, u'P'},
                     {u"chkDeclaracionInicio", 442, u'I'},
                     {u"chkDeclaracionModificacion", 441, u'M'},
                     {u"chkDeclaracionCese", 440, u'C'}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(q(casillas[i].casilla), q(esperadas[i].nombre));
        EXPECT_EQ(casillas[i].caption, esperadas[i].caption);
        EXPECT_EQ(casillas[i].letra, QChar(esperadas[i].letra));
    }
}

TEST_F(Tipos, PreguntaDeLosQueNoSonCeseSoloPorElApartado6) {
    for (const char16_t letra : {u'P', u'I', u'M'}) {
        d.InicializarDeclaracion();
        for (const auto a : SeccionesConRegistro)
            if (a != Apartado::Seis) llenar(d, a);
        EXPECT_FALSE(PreguntaMarcarTipo(d, letra));
        llenar(d, Apartado::Seis);
        EXPECT_EQ(texto(PreguntaMarcarTipo(d, letra)),
                  estado.Texto(528) + u'|' + estado.Texto(527));
    }
}

TEST_F(Tipos, PreguntaDelCeseNombraLosQueTienenDatos) {
    for (unsigned i = 0; i < 8; ++i) {
        d.InicializarDeclaracion();
        for (const auto a : {Apartado::Dos, Apartado::Cinco, Apartado::Seis, Apartado::Siete})
            llenar(d, a);
        QString esperada;
        if (i & 1) llenar(d, Apartado::Tres), esperada += QStringLiteral("3 ");
        if (i & 2) llenar(d, Apartado::Cuatro), esperada += QStringLiteral("4 ");
        if (i & 4) llenar(d, Apartado::AnexoII), esperada += QStringLiteral("AII ");
        EXPECT_EQ(texto(PreguntaMarcarTipo(d, u'C')), lista(esperada)) << i;
    }
}

TEST_F(Tipos, LasPalabrasDeLaPreguntaEnLosDosIdiomas) {
    llenar(d, Apartado::Tres);
    llenar(d, Apartado::AnexoII);
    EXPECT_EQ(PreguntaMarcarTipo(d, u'C')->texto,
              QStringLiteral("Los apartados y anexos siguientes contienen datos que se borrarán: "
                             "3 AII ... ¿Desea continuar?"));
    g.Causa1 = QStringLiteral("I");
    EXPECT_EQ(PreguntaQuitarTipo(d)->texto,
              QStringLiteral("Los apartados y anexos siguientes contienen datos que se borrarán: "
                             "3 AII... ¿Desea continuar?"));
    enEuskera();
    EXPECT_EQ(PreguntaMarcarTipo(d, u'C')->texto,
              QStringLiteral("Atal eta eranskin hauetan datuak daude, eta ezabatu egingo dira: "
                             "3 AII ... Jarraitu nahi duzu?"));
    EXPECT_EQ(PreguntaMarcarTipo(d, u'C')->titulo, QStringLiteral("Atalak ezabatzea"));
}

struct EfectoTipo {
    char16_t letra;
    const char16_t* dni;
    const char16_t* antes;  ///< flags before
    const char16_t* despues;
};
class EfectoDeTipo : public Tipos, public ::testing::WithParamInterface<EfectoTipo> {};

TEST_P(EfectoDeTipo, MarcaYVacia) {
    const auto& [letra, dni, antes, despues] = GetParam();
    llenarTodo(d);
    g.DNI = q(dni);
    for (std::size_t i = 0; i < 6; ++i)
        g.*CasillasApartado()[i].bandera = q(antes).mid(static_cast<qsizetype>(i), 1);
    g.AnexoI = q(antes).mid(6, 1);
    g.AnexoII = q(antes).mid(7, 1);
    ponerParticipe(u"12345678Z", u"C", 3);
    MarcarTipo(d, letra);
    EXPECT_EQ(g.Causa1, QString(QChar(letra)));
    EXPECT_EQ(banderas(g), q(despues));
    const bool cese = letra == u'C';
    for (const auto a : SeccionesConRegistro) {
        const bool borrado =
            cese ? a == Apartado::Tres || a == Apartado::Cuatro || a == Apartado::AnexoII
                 : a == Apartado::Seis;
        EXPECT_EQ(lleno(d, a), !borrado) << static_cast<int>(a);
    }
    EXPECT_EQ(d.NumParti, 1);
}
INSTANTIATE_TEST_SUITE_P(Filas, EfectoDeTipo,
                         ::testing::Values(EfectoTipo{u'P', u"A12345674", u"        ", u"XX X    "},
                                           EfectoTipo{u'P', u"E12345674", u"        ", u"XX X  X "},
                                           EfectoTipo{u'P', u"G12345674", u"XXXXXX X", u"XXXX X X"},
                                           EfectoTipo{u'I', u"A12345674", u"        ", u"   X    "},
                                           EfectoTipo{u'I', u"E12345674", u"    X   ", u"   X  X "},
                                           EfectoTipo{u'I', u"", u"XXXXXXXX", u"XXXX XXX"},
                                           EfectoTipo{u'M', u"E12345674", u"    X   ", u"        "},
                                           EfectoTipo{u'M', u"A12345674", u"XXXXXXXX", u"XXXX XXX"},
                                           EfectoTipo{u'C', u"E12345674", u"        ", u"    X   "},
                                           EfectoTipo{u'C', u"A12345674", u"XXXXXXXX",
                                                      u"X  XXXX "}));

TEST_F(Tipos, PreguntaDeQuitarNombraTodosLosQueTienenDatos) {
    const std::pair<Apartado, QString> partes[] = {
        {Apartado::Tres, QStringLiteral("3 ")},  {Apartado::Cuatro, QStringLiteral("4 ")},
        {Apartado::Cinco, QStringLiteral("5 ")}, {Apartado::Seis, QStringLiteral("6 ")},
        {Apartado::Siete, QStringLiteral("7 ")}, {Apartado::AnexoII, QStringLiteral("AII")}};
    for (const char16_t letra : {u'P', u'I', u'M', u'C'})
        for (unsigned i = 0; i < 64; ++i) {
            d.InicializarDeclaracion();
            llenar(d, Apartado::Dos);
            g.Causa1 = QChar(letra);
            QString esperada;
            for (unsigned k = 0; k < 6; ++k) {
                if (!(i & (1U << k))) continue;
                llenar(d, partes[k].first);
                if (letra != u'C' || k != 5) esperada += partes[k].second;
            }
            EXPECT_EQ(texto(PreguntaQuitarTipo(d)), lista(esperada)) << i;
            ponerParticipe(u"12345678Z", u"A");
            if (letra == u'C') esperada += QStringLiteral("AI");
            EXPECT_EQ(texto(PreguntaQuitarTipo(d)), lista(esperada)) << i;
        }
}

class QuitarUnTipo : public Tipos, public ::testing::WithParamInterface<char16_t> {};

TEST_P(QuitarUnTipo, VaciaDelTresAlSieteYElAnexoII) {
    llenarTodo(d);
    todasLasBanderas();
    g.Causa1 = QChar(GetParam());
    const auto participe = ponerParticipe(u"12345678Z", u"C", 3);
    d.SumaPorcen = 50;
    QuitarTipo(d);
    EXPECT_EQ(g.Causa1, QString());
    EXPECT_EQ(banderas(g), QStringLiteral("X     X "));
    for (const auto a : SeccionesConRegistro) EXPECT_EQ(lleno(d, a), a == Apartado::Dos);
    const bool modificacion = GetParam() == u'M';
    EXPECT_EQ(d.NumParti, modificacion ? 0 : 1);
    EXPECT_EQ(g.NumParti, modificacion ? 0 : 1);
    EXPECT_EQ(d.SumaPorcen, modificacion ? 0 : 50);
    ASSERT_EQ(d.participantes.colParticipes.size(), 1U) << "participants stay";
    EXPECT_EQ(participe->Modo.texto(), QStringLiteral("C"));
}
INSTANTIATE_TEST_SUITE_P(Letras, QuitarUnTipo, ::testing::Values(u'P', u'I', u'M', u'C'));

// The counters are 0 then, the participants are still there to be cleared by their box.
TEST_F(Tipos, QuitarLaModificacionNoEscondeLosParticipes) {
    g.Causa1 = QStringLiteral("M");
    const auto guardado = ponerParticipe(u"12345678Z", u"C", 3);
    QuitarTipo(d);
    EXPECT_EQ(g.NumParti, 0);
    const auto& anexoI = CasillaDe(Apartado::AnexoI);
    EXPECT_TRUE(anexoI.lleno(d)) << "unticking it asks";
    BorrarApartado(d, Apartado::AnexoI);
    EXPECT_FALSE(anexoI.lleno(d));
    EXPECT_EQ(guardado->Modo.texto(), QStringLiteral("E")) << "the store is told at the save";
}

}  // namespace
}  // namespace padral::pruebas
