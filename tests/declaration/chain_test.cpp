// The chain of screens, over all sets of flags, against the two tables written out by themselves.

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

/// One situation of a declaration.
struct Situacion {
    unsigned banderas;  ///< bit n: section n; bit 8 Annex I; bit 10 Annex II
    int partiGeneral, partiDeclaracion;
    bool edicion2015;
    bool marca(int n) const { return (banderas >> n & 1U) != 0; }
};

const QString Nada, Inicio = QStringLiteral("FrmDatGen"),
                    Lista = QStringLiteral("frmListaParticipes"),
                    Participe = QStringLiteral("frmDatosParticipe");

QString pantalla(int seccion, bool edicion2015) {
    const char16_t* nombres[] = {u"FrmApartado2", u"FrmApartado3", u"frmApartado4",
                                 u"frmApartado5", u"frmApartado6", u"FrmApartado7"};
    QString nombre = q(nombres[seccion - 2]);
    if (edicion2015 && seccion >= 3 && seccion <= 5) nombre += QStringLiteral("_2015");
    return nombre;
}

/// Row by row: number, test, screen, otherwise the row before.
QString anterior(int numero, const Situacion& s) {
    switch (numero) {
        case 2:
            return Inicio;
        case 3:
        case 4:
        case 5:
        case 6:
        case 7:
        case 8:
            return s.marca(numero - 1) ? pantalla(numero - 1, s.edicion2015)
                                       : anterior(numero - 1, s);
        case 9:
            return s.partiGeneral > 0 ? Lista : anterior(8, s);
        case 10:
            if (!s.marca(8)) return anterior(9, s);
            return s.partiGeneral > 0 ? Lista : Participe;
        default:
            return Nada;
    }
}

QString siguiente(int numero, const Situacion& s) {
    switch (numero) {
        case 2:
        case 3:
        case 4:
        case 5:
        case 6:
            return s.marca(numero + 1) ? pantalla(numero + 1, s.edicion2015)
                                       : siguiente(numero + 1, s);
        case 7:
            if (!s.marca(8)) return siguiente(8, s);
            return s.partiDeclaracion != 0 ? Lista : Participe;
        case 8:
            return s.marca(10) ? QStringLiteral("frmAnexoII") : Nada;
        default:
            return Nada;
    }
}

class Cadena : public ConDeclaracion {
protected:
    /// Runs `ver` for each set of the eight flags, both editions, four states of the counters.
    void recorrer(const std::function<void(const Situacion&)>& ver) {
        for (unsigned i = 0; i < 256; ++i)
            for (int caso = 0; caso < 8; ++caso) {
                Situacion s{0, (caso & 1) * 2, (caso & 2), (caso & 4) != 0};
                s.banderas = (i & 0x3FU) << 2 | (i >> 6 & 1U) << 8 | (i >> 7 & 1U) << 10;
                poner(s);
                ver(s);
            }
    }
    void poner(const Situacion& s) {
        QString* banderas[] = {&g.Apartado2, &g.Apartado3, &g.Apartado4, &g.Apartado5,
                               &g.Apartado6, &g.Apartado7, &g.AnexoI};
        for (int n = 2; n <= 8; ++n)
            *banderas[n - 2] = s.marca(n) ? QStringLiteral("X") : QStringLiteral(" ");
        g.AnexoII = s.marca(10) ? QStringLiteral("X") : QString();
        g.NumParti = static_cast<qint16>(s.partiGeneral);
        d.NumParti = static_cast<qint16>(s.partiDeclaracion);
        g.FECHAVIGOR = s.edicion2015 ? 20150101 : 20141231;
    }
    static QStringList llamada(const QString& pantalla) {
        return pantalla.isEmpty() ? QStringList{}
                                  : QStringList{QStringLiteral("Mostrar ") + pantalla};
    }
};

TEST_F(Cadena, AnteriorDesdeCadaNumero) {
    const QString nombre = QStringLiteral("laPantalla");
    recorrer([&](const Situacion& s) {
        for (int numero = 1; numero <= 11; ++numero) {
            estado.FormularioOrigen = QStringLiteral("MDIPadral");
            d.IrApartadoAnterior(numero, nombre);
            ASSERT_EQ(pantallas.Tomar(), llamada(anterior(numero, s)))
                << numero << ' ' << s.banderas << ' ' << s.partiGeneral;
            ASSERT_EQ(estado.FormularioOrigen, nombre);
        }
    });
}

TEST_F(Cadena, SiguienteDesdeCadaNumero) {
    recorrer([&](const Situacion& s) {
        for (int numero = 1; numero <= 9; ++numero) {
            const bool sigue = d.IrApartadoSiguiente(numero);
            ASSERT_EQ(sigue, !siguiente(numero, s).isEmpty());
            ASSERT_EQ(pantallas.Tomar(), llamada(siguiente(numero, s)))
                << numero << ' ' << s.banderas << ' ' << s.partiDeclaracion;
        }
    });
}

TEST_F(Cadena, ElOrigenEstaPuestoCuandoSeMuestraLaPantalla) {
    QStringList origenes;
    pantallas.alLlamar = [&](const QString&) { origenes << estado.FormularioOrigen; };
    for (int numero = 2; numero <= 10; ++numero) {
        estado.FormularioOrigen = QStringLiteral("MDIPadral");
        d.IrApartadoAnterior(numero, QStringLiteral("p%1").arg(numero));
        EXPECT_EQ(origenes.last(), QStringLiteral("p%1").arg(numero));
    }
}

TEST_F(Cadena, SiguienteNoTocaElOrigen) {
    estado.FormularioOrigen = QStringLiteral("FrmApartado2");
    g.Apartado3 = QStringLiteral("X");
    d.IrApartadoSiguiente(2);
    EXPECT_EQ(estado.FormularioOrigen, QStringLiteral("FrmApartado2"));
}

struct EdicionEsperada {
    qint32 vigor;
    int seccion;
    const char16_t* nombre;
};
class EdicionDePantalla : public ConDeclaracion,
                          public ::testing::WithParamInterface<EdicionEsperada> {};

TEST_P(EdicionDePantalla, PorFechaDeVigor) {
    g.FECHAVIGOR = GetParam().vigor;
    EXPECT_EQ(d.PantallaApartado(GetParam().seccion), q(GetParam().nombre));
}
INSTANTIATE_TEST_SUITE_P(Filas, EdicionDePantalla,
                         ::testing::Values(EdicionEsperada{0, 3, u"FrmApartado3"},
                                           EdicionEsperada{20141231, 3, u"FrmApartado3"},
                                           EdicionEsperada{20150101, 3, u"FrmApartado3_2015"},
                                           EdicionEsperada{20141231, 4, u"frmApartado4"},
                                           EdicionEsperada{20150101, 4, u"frmApartado4_2015"},
                                           EdicionEsperada{20141231, 5, u"frmApartado5"},
                                           EdicionEsperada{20150101, 5, u"frmApartado5_2015"},
                                           EdicionEsperada{20150101, 2, u"FrmApartado2"},
                                           EdicionEsperada{20150101, 6, u"frmApartado6"},
                                           EdicionEsperada{20150101, 7, u"FrmApartado7"}));

TEST_F(Cadena, SinParticipesSePreparaUnoNuevo) {
    g.AnexoI = QStringLiteral("X");
    const auto deAntes = ponerParticipe(u"12345678Z", u"E", 3);
    d.DecrementarNumParti();
    d.participantes.ParticipeActual = deAntes;
    d.IrApartadoSiguiente(7);
    const auto& actual = *d.participantes.ParticipeActual;
    EXPECT_EQ(actual.Modo.texto(), QStringLiteral("A"));
    EXPECT_TRUE(actual.MODIFPARTICIPES);
    EXPECT_TRUE(actual.DNI.vacio());
    EXPECT_EQ(actual.cspa, 0);
    EXPECT_EQ(deAntes->DNI.recortado(), QStringLiteral("12345678Z")) << "the deleted one stays";
}

// From Annex II, as from section 7.
TEST_F(Cadena, AnteriorDesdeElAnexoIIPreparaUnParticipeNuevo) {
    g.AnexoI = QStringLiteral("X");
    const auto borrado = ponerParticipe(u"12345678Z", u"E", 3);
    borrado->NOMBRE = QStringLiteral("PERSONA UNA");
    borrado->PorcenPart = 50;
    d.DecrementarNumParti();
    const DatosParticipe antes = *borrado;
    for (const auto& actual : {borrado, std::shared_ptr<cParticipes>()}) {
        d.participantes.ParticipeActual = actual;
        std::shared_ptr<cParticipes> alMostrar;
        pantallas.alLlamar = [&](const QString&) { alMostrar = d.participantes.ParticipeActual; };
        d.IrApartadoAnterior(10, QStringLiteral("frmAnexoII"));
        EXPECT_EQ(pantallas.Tomar(), QStringList{QStringLiteral("Mostrar frmDatosParticipe")});
        ASSERT_TRUE(alMostrar) << "it is there before the screen is";
        EXPECT_EQ(alMostrar, d.participantes.ParticipeActual);
        EXPECT_NE(alMostrar, borrado);
        EXPECT_EQ(alMostrar->Modo.texto(), QStringLiteral("A"));
        EXPECT_TRUE(alMostrar->MODIFPARTICIPES);
        EXPECT_EQ(alMostrar->Lleno, QStringLiteral("False"));
        EXPECT_EQ(static_cast<const DatosParticipe&>(*alMostrar), DatosParticipe{});
    }
    ASSERT_EQ(d.participantes.colParticipes.size(), 1U) << "the new one is not counted in yet";
    EXPECT_EQ(d.participantes.colParticipes.front(), borrado);
    EXPECT_EQ(static_cast<const DatosParticipe&>(*borrado), antes);
    EXPECT_EQ(borrado->Modo.texto(), QStringLiteral("E"));
    EXPECT_EQ(g.NumParti, 0);
}

TEST_F(Cadena, AnteriorDesdeElAnexoIIConUnParticipeVaALaLista) {
    g.AnexoI = QStringLiteral("X");
    const auto unico = ponerParticipe(u"12345678Z", u"C", 3);
    g.NumParti = 1;
    for (const auto& actual : {unico, std::shared_ptr<cParticipes>()}) {
        d.participantes.ParticipeActual = actual;
        d.IrApartadoAnterior(10, QStringLiteral("frmAnexoII"));
        EXPECT_EQ(pantallas.Tomar(), QStringList{QStringLiteral("Mostrar frmListaParticipes")});
        EXPECT_EQ(d.participantes.ParticipeActual, actual) << "none is prepared";
    }
}

TEST_F(Cadena, ConParticipesElActualNoCambia) {
    g.AnexoI = QStringLiteral("X");
    const auto actual = ponerParticipe(u"12345678Z", u"C", 3);
    d.participantes.ParticipeActual = actual;
    d.IrApartadoSiguiente(7);
    d.IrApartadoAnterior(10, QStringLiteral("frmAnexoII"));
    EXPECT_EQ(d.participantes.ParticipeActual, actual);
    EXPECT_EQ(actual->Modo.texto(), QStringLiteral("C"));
}

}  // namespace
}  // namespace padral::pruebas
