// How the record shows in the controls: values, marks, what is enabled and what is locked.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

using Presentacion = PantallaGeneral;

TEST_F(Presentacion, CadaCampoMuestraSuPropiedad) {
    rellenarGenerales(g);
    g.Causa1 = QStringLiteral("M");
    g.MotivoCambio = 10;
    g.ElMismo = QString();
    g.FirmaEnCalidadDe = QStringLiteral("ADMINISTRADOR");
    g.FECHADECLARACION = 20150110;
    abrirRegistro();
    const std::pair<const char16_t*, const char16_t*> valores[] = {
        {u"txtDNI", u"A12345674"},
        {u"txtNombre", u"NOMBRE"},
        {u"txtNumeroArchivo", u"REF-1"},
        {u"mskFechaDeclaracion", u"10/01/2015"},
        {u"mskFechaModificacion", u"05/04/2015"},
        {u"mskFechaInscrip", u"04/03/2002"},
        {u"mskFechaConst", u"__/__/____"},
        {u"txtDNIRepresentante", u"12345678Z"},
        {u"txtNombreRepresentante", u"REPRESENTANTE"},
        {u"txtFirmaEnCalidadDe", u"ADMINISTRADOR"},
        {u"txtDNIAnterior", u"B12345674"},
        {u"txtNombreAnterior", u"ANTERIOR"}};
    for (const auto& [nombre, valor] : valores) EXPECT_EQ(fecha(nombre), q(valor)) << s(nombre);
    EXPECT_TRUE(c<QComboBox>(u"cmbMotivoCambio")->currentText().startsWith(QStringLiteral("10")));
    EXPECT_EQ(g.FECHAVIGOR, 20150405);
}

TEST_F(Presentacion, LasFechasEnEuskera) {
    enEuskera();
    g.FECHADECLARACION = 20150110;
    abrirRegistro();
    EXPECT_EQ(fecha(u"mskFechaDeclaracion"), QStringLiteral("2015/01/10"));
}

TEST_F(Presentacion, UnaCasillaDeTipoYUnaDeSolicitud) {
    for (const auto& letra : {QStringLiteral("P"), QStringLiteral("I"), QStringLiteral("M"),
                              QStringLiteral("C"), QStringLiteral("Z"), QString()}) {
        g.Causa1 = letra;
        abrirRegistro();
        for (const auto& tipo : CasillasTipo())
            EXPECT_EQ(marcada(tipo.casilla), letra == QString(tipo.letra)) << letra.toStdString();
    }
    for (const auto& letra : {QStringLiteral("A"), QStringLiteral("D"), QStringLiteral("Z")}) {
        g.Causa2 = letra;
        abrirRegistro();
        for (const auto& solicitud : CasillasSolicitud())
            EXPECT_EQ(marcada(solicitud.casilla), letra == QString(solicitud.letra));
    }
}

struct PorMotivo {
    qint16 motivo;
    bool dniBloqueado, nombreBloqueado;
};
class MotivoPresentado : public PantallaGeneral, public ::testing::WithParamInterface<PorMotivo> {};

TEST_P(MotivoPresentado, BloqueaLaIdentidadAnterior) {
    g.MotivoCambio = GetParam().motivo;
    g.DNIAnterior = QStringLiteral("B12345674");
    g.NombreAnterior = QStringLiteral("ANTERIOR");
    abrirRegistro();
    EXPECT_EQ(bloqueado(u"txtDNIAnterior"), GetParam().dniBloqueado);
    EXPECT_EQ(bloqueado(u"txtNombreAnterior"), GetParam().nombreBloqueado);
    EXPECT_EQ(texto(u"txtDNIAnterior").isEmpty(), GetParam().dniBloqueado);
    EXPECT_EQ(texto(u"txtNombreAnterior").isEmpty(), GetParam().nombreBloqueado);
    EXPECT_EQ(g.DNIAnterior.isEmpty(), GetParam().dniBloqueado);
    EXPECT_EQ(g.NombreAnterior.isEmpty(), GetParam().nombreBloqueado);
    EXPECT_EQ(c<QComboBox>(u"cmbMotivoCambio")->currentText().left(2).toInt(), GetParam().motivo);
}
INSTANTIATE_TEST_SUITE_P(Motivos, MotivoPresentado,
                         ::testing::Values(PorMotivo{0, true, true}, PorMotivo{10, false, false},
                                           PorMotivo{20, true, false}, PorMotivo{30, false, false},
                                           PorMotivo{31, true, false}));

struct PorTipo {
    const char16_t* causa1;
    /// chkApartado2 to chkApartado7, chkApartado8, chkAnexoII.
    const char16_t* habilitadas;
};
class TipoPresentado : public PantallaGeneral, public ::testing::WithParamInterface<PorTipo> {};

TEST_P(TipoPresentado, HabilitaSusCasillas) {
    g.DNI = QStringLiteral("A12345674");
    g.Causa1 = q(GetParam().causa1);
    abrirRegistro();
    QString habilitadas;
    for (const auto& casilla : CasillasApartado())
        habilitadas += habilitado(casilla.casilla) ? u'1' : u'0';
    EXPECT_EQ(habilitadas, q(GetParam().habilitadas));
    EXPECT_EQ(habilitado(u"mskFechaModificacion"), g.Causa1 == QStringLiteral("M"));
}
INSTANTIATE_TEST_SUITE_P(Tipos, TipoPresentado,
                         ::testing::Values(PorTipo{u"", u"10000010"}, PorTipo{u"P", u"10100111"},
                                           PorTipo{u"I", u"11100111"}, PorTipo{u"M", u"11110111"},
                                           PorTipo{u"C", u"10010110"}));

TEST_F(Presentacion, LasFechasDeLaSolicitudSoloConLaSuya) {
    for (const auto& letra : {QString(), QStringLiteral("A"), QStringLiteral("B"),
                              QStringLiteral("E"), QStringLiteral("F")}) {
        g.Causa2 = letra;
        g.FechaConstitucion = 20010203;
        g.FechaInscripcion = 20020304;
        abrirRegistro();
        const bool constitucion = letra == QStringLiteral("A");
        const bool inscripcion = letra == QStringLiteral("E");
        EXPECT_EQ(habilitado(u"mskFechaConst"), constitucion);
        EXPECT_EQ(habilitado(u"mskFechaInscrip"), inscripcion);
        EXPECT_EQ(fecha(u"mskFechaConst") == QStringLiteral("03/02/2001"), constitucion);
        EXPECT_EQ(fecha(u"mskFechaInscrip") == QStringLiteral("04/03/2002"), inscripcion);
    }
}

TEST_F(Presentacion, ElMismoBloqueaAlRepresentante) {
    g.DNIRepresentante = QStringLiteral("12345678Z");
    g.NombreRepresentante = QStringLiteral("R");
    g.FirmaEnCalidadDe = QStringLiteral("EL MISMO");
    g.ElMismo = QStringLiteral("X");
    abrirRegistro();
    EXPECT_TRUE(marcada(u"chkElMismo"));
    for (const auto* nombre :
         {u"txtDNIRepresentante", u"txtNombreRepresentante", u"txtFirmaEnCalidadDe"})
        EXPECT_TRUE(bloqueado(nombre)) << s(nombre);
    EXPECT_EQ(texto(u"txtDNIRepresentante") + texto(u"txtNombreRepresentante"), QString());
    EXPECT_EQ(texto(u"txtFirmaEnCalidadDe"), QStringLiteral("EL MISMO"));
    g.ElMismo = g.FirmaEnCalidadDe = QString();
    abrirRegistro();
    EXPECT_FALSE(marcada(u"chkElMismo"));
    for (const auto* nombre :
         {u"txtDNIRepresentante", u"txtNombreRepresentante", u"txtFirmaEnCalidadDe"})
        EXPECT_FALSE(bloqueado(nombre)) << s(nombre);
}

TEST_F(Presentacion, ElAnexoIForzadoSaleMarcadoYCerrado) {
    g.DNI = QStringLiteral("G12345674");
    g.Causa1 = QStringLiteral("C");
    g.AnexoI = QStringLiteral(" ");
    d.apartado6.CAUSA = 20;
    abrirRegistro();
    EXPECT_TRUE(habilitado(u"chkApartado8"));
    EXPECT_FALSE(marcada(u"chkApartado8"));
    d.apartado6.CAUSA = 10;
    abrirRegistro();
    EXPECT_FALSE(habilitado(u"chkApartado8"));
    EXPECT_TRUE(marcada(u"chkApartado8"));
    EXPECT_TRUE(habilitado(u"cmdAnexo"));
}

TEST_F(Presentacion, CadaBotonDeApartadoSigueASuMarca) {
    g.Causa1 = QStringLiteral("M");
    for (unsigned i = 0; i < 8; ++i) {
        for (const auto& casilla : CasillasApartado()) g.*casilla.bandera = QStringLiteral(" ");
        g.*CasillasApartado()[i].bandera = QStringLiteral("X");
        abrirRegistro();
        for (unsigned j = 0; j < 8; ++j) {
            EXPECT_EQ(marcada(CasillasApartado()[j].casilla), i == j);
            EXPECT_EQ(habilitado(CasillasApartado()[j].boton), i == j);
        }
    }
}

TEST_F(Presentacion, UnaPantallaQueNoExisteDejaSuBotonApagado) {
    const std::pair<const char16_t*, const char16_t*> pares[] = {
        {u"FrmApartado2", u"cmdApartado2"},  {u"FrmApartado3", u"cmdApartado3"},
        {u"frmApartado4", u"cmdApartado4"},  {u"frmApartado5", u"cmdApartado5"},
        {u"frmApartado6", u"cmdApartado6"},  {u"FrmApartado7", u"cmdApartado7"},
        {u"frmDatosParticipe", u"cmdAnexo"}, {u"frmAnexoII", u"cmdAnexoII"}};
    for (const auto& casilla : CasillasApartado()) g.*casilla.bandera = QStringLiteral("X");
    for (const auto& [ausente, boton] : pares) {
        pantallas.ausentes = {q(ausente)};
        abrirRegistro();
        for (const auto& casilla : CasillasApartado())
            EXPECT_EQ(habilitado(casilla.boton), q(casilla.boton) != q(boton)) << s(ausente);
    }
    pantallas.ausentes = {QStringLiteral("FrmApartado3_2015")};
    d.apartado3.FechaInicio(20150101);
    abrirRegistro();
    EXPECT_FALSE(habilitado(u"cmdApartado3"));
    ponerParticipe(u"12345678Z", u"A");
    pantallas.ausentes = {QStringLiteral("frmListaParticipes")};
    abrirRegistro();
    EXPECT_FALSE(habilitado(u"cmdAnexo"));
}

}  // namespace
}  // namespace padral::pruebas
