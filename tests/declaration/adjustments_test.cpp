// What type, request, reason and dates empty, and the effective date.

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"
#include "declaration/section_boxes.h"

namespace padral::pruebas {
namespace {

/// The answers that depend on a date, as one text: a blank where emptied.
class Ajustes : public ConDeclaracion {
protected:
    void SetUp() override {
        const QString o = QStringLiteral("O"), si = QStringLiteral("S"), x = QStringLiteral("X");
        d.apartado4.IVACUOADU = o;
        d.apartado3.ActVenMov = x;
        d.apartado4.IVAAGENCIAS = o;
        d.apartado4.IRPFOBJET = o;
        d.apartado5.IRPFOBJETIVA = si;
        d.apartado5.AGENCIASGLOBAL = si;
        d.anexoII.OpcionApl = o;
    }
    QString respuestas() const {
        const auto letra = [](const QString& t) { return t.isEmpty() ? QStringLiteral(" ") : t; };
        return letra(d.apartado4.IVACUOADU) + letra(d.apartado3.ActVenMov) +
               letra(d.apartado4.IVAAGENCIAS) + letra(d.apartado4.IRPFOBJET) +
               letra(d.apartado5.IRPFOBJETIVA) + letra(d.apartado5.AGENCIASGLOBAL) +
               letra(d.anexoII.OpcionApl);
    }
};

struct PorFecha {
    qint32 fecha;
    const char16_t* quedan;
};
class PorFechaModificacion : public Ajustes, public ::testing::WithParamInterface<PorFecha> {};

TEST_P(PorFechaModificacion, VaciaLoQueLaFechaNoAdmite) {
    g.FechaModificacion(GetParam().fecha);
    AjustarPorFechaModificacion(d);
    EXPECT_EQ(respuestas(), q(GetParam().quedan));
}
INSTANTIATE_TEST_SUITE_P(Filas, PorFechaModificacion,
                         ::testing::Values(PorFecha{0, u"  OOSSO"}, PorFecha{20141231, u"  OOSSO"},
                                           PorFecha{20150101, u"OX     "},
                                           PorFecha{20160229, u"OX     "}));

class PorFechaVigor : public Ajustes, public ::testing::WithParamInterface<PorFecha> {};

TEST_P(PorFechaVigor, VaciaDesde2014) {
    g.FECHAVIGOR = GetParam().fecha;
    AjustarPorFechaVigor(d);
    EXPECT_EQ(respuestas(), q(GetParam().quedan));
}
INSTANTIATE_TEST_SUITE_P(Filas, PorFechaVigor,
                         ::testing::Values(PorFecha{0, u"OXOOSSO"}, PorFecha{20131231, u"OXOOSSO"},
                                           PorFecha{20140101, u"OXO NS "},
                                           PorFecha{20150101, u"OXO NS "}));

struct Vigor {
    const char16_t* causa1;
    qint32 modificacion, cese, inicio, vigor;
};
class FechaDeVigor : public ConDeclaracion, public ::testing::WithParamInterface<Vigor> {};

TEST_P(FechaDeVigor, SegunElTipo) {
    const auto& [causa1, modificacion, cese, inicio, vigor] = GetParam();
    d.apartado3.FechaInicio(inicio);
    d.apartado6.FECHACESE = cese;
    g.FechaModificacion(modificacion);
    g.Causa1 = q(causa1);
    g.FECHAVIGOR = 1;
    EXPECT_EQ(CalcularFechaVigor(d), vigor);
    AjustarGenerales(d);
    EXPECT_EQ(g.FECHAVIGOR, vigor);
}
INSTANTIATE_TEST_SUITE_P(Filas, FechaDeVigor,
                         ::testing::Values(Vigor{u"M", 20140202, 20150303, 20160404, 20140202},
                                           Vigor{u"M", 0, 20150303, 20160404, 0},
                                           Vigor{u"C", 20140202, 20150303, 20160404, 20150303},
                                           Vigor{u"C", 20140202, 0, 20160404, 0},
                                           Vigor{u"I", 20140202, 20150303, 20160404, 20160404},
                                           Vigor{u"P", 20140202, 20150303, 20160404, 20160404},
                                           Vigor{u"", 20140202, 20150303, 20160404, 20160404},
                                           Vigor{u"I", 20140202, 20150303, 0, 0}));

struct Identidad {
    qint16 motivo;
    bool dni, nombre;  ///< what stays
};
class PorMotivo : public ConDeclaracion, public ::testing::WithParamInterface<Identidad> {};

TEST_P(PorMotivo, QuedaLaIdentidadAnteriorQuePide) {
    rellenarGenerales(g);
    g.MotivoCambio = GetParam().motivo;
    AjustarGenerales(d);
    EXPECT_EQ(g.DNIAnterior, GetParam().dni ? QStringLiteral("B12345674") : QString());
    EXPECT_EQ(g.NombreAnterior, GetParam().nombre ? QStringLiteral("ANTERIOR") : QString());
}
INSTANTIATE_TEST_SUITE_P(Motivos, PorMotivo,
                         ::testing::Values(Identidad{0, false, false}, Identidad{10, true, true},
                                           Identidad{20, false, true}, Identidad{30, true, true},
                                           Identidad{31, false, true}));

struct FechasQueQuedan {
    const char16_t *causa1, *causa2;
    bool modificacion, constitucion, inscripcion;
};
class PorTipoYSolicitud : public ConDeclaracion,
                          public ::testing::WithParamInterface<FechasQueQuedan> {};

TEST_P(PorTipoYSolicitud, QuedanLasFechasQuePiden) {
    const auto& caso = GetParam();
    rellenarGenerales(g);
    g.Causa1 = q(caso.causa1);
    g.Causa2 = q(caso.causa2);
    AjustarGenerales(d);
    EXPECT_EQ(g.FechaModificacion(), caso.modificacion ? 20150405 : 0);
    EXPECT_EQ(g.FechaConstitucion, caso.constitucion ? 20010203 : 0);
    EXPECT_EQ(g.FechaInscripcion, caso.inscripcion ? 20020304 : 0);
}
INSTANTIATE_TEST_SUITE_P(Filas, PorTipoYSolicitud,
                         ::testing::Values(FechasQueQuedan{u"M", u"A", true, true, false},
                                           FechasQueQuedan{u"M", u"E", true, false, true},
                                           FechasQueQuedan{u"I", u"A", false, true, false},
                                           FechasQueQuedan{u"C", u"E", false, false, true},
                                           FechasQueQuedan{u"P", u"D", false, false, false},
                                           FechasQueQuedan{u"", u"", false, false, false}));

TEST_F(Ajustes, ElAnexoIForzadoQuedaMarcado) {
    g.DNI = QStringLiteral("E12345674");
    g.Causa1 = QStringLiteral("I");
    g.AnexoI = QStringLiteral(" ");
    AjustarGenerales(d);
    EXPECT_EQ(g.AnexoI, QStringLiteral("X"));
    g.Causa1 = QStringLiteral("M");
    g.AnexoI = QStringLiteral(" ");
    AjustarGenerales(d);
    EXPECT_EQ(g.AnexoI, QStringLiteral(" "));
}

}  // namespace
}  // namespace padral::pruebas
