// Which identifier of the screen is told first, and which are asked at all.

#include "declaration/full_declaration.h"
#include "declaration/general_rules.h"

namespace padral::pruebas {
namespace {

struct CasoNif {
    const char16_t *anterior, *representante, *propio, *causa2;
    QStringList malos;        ///< what the common server refuses
    QStringList preguntados;  ///< what it is asked, in order
    const char16_t* foco;     ///< u"" all are right
    bool pestana = false;
};

class PrimerNif : public ::testing::TestWithParam<CasoNif> {};

TEST_P(PrimerNif, EnSuOrden) {
    const auto& caso = GetParam();
    EstadoDeclaracion estado;
    cDatosGenerales g{estado};
    g.DNIAnterior = q(caso.anterior);
    g.DNIRepresentante = q(caso.representante);
    g.DNI = q(caso.propio);
    g.Causa2 = q(caso.causa2);
    QStringList preguntados;
    const auto rechazado = PrimerNifRechazado(g, [&](const QString& nif) {
        preguntados << nif;
        return !caso.malos.contains(nif);
    });
    EXPECT_EQ(preguntados, caso.preguntados);
    EXPECT_EQ(rechazado ? q(rechazado->foco) : QString(), q(caso.foco));
    EXPECT_EQ(rechazado && rechazado->pestanaModif, caso.pestana);
}

QStringList l(std::initializer_list<QString> textos) { return textos; }
const QString A = QStringLiteral("A"), R = QStringLiteral("R"), P = QStringLiteral("P");

INSTANTIATE_TEST_SUITE_P(
    Filas, PrimerNif,
    ::testing::Values(CasoNif{u"A", u"R", u"P", u"", {}, l({A, R, P}), u""},
                      CasoNif{u"A", u"R", u"P", u"", l({A, R, P}), l({A}), u"txtDNIAnterior", true},
                      CasoNif{u"A", u"R", u"P", u"", l({R, P}), l({A, R}), u"txtDNIRepresentante"},
                      CasoNif{u"A", u"R", u"P", u"", l({P}), l({A, R, P}), u"txtDNI"},
                      CasoNif{u"A", u"R", u"P", u"A", l({P}), l({A, R}), u""},
                      CasoNif{u"A", u"R", u"P", u"B", l({P}), l({A, R, P}), u"txtDNI"},
                      CasoNif{u"", u" ", u"", u"", l({QString()}), {}, u""},
                      CasoNif{u"", u"R", u"", u"", l({R}), l({R}), u"txtDNIRepresentante"}));

}  // namespace
}  // namespace padral::pruebas
