// What section 4 shows of a record when it opens, and what it does to it.

#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaApartado4, VaciaNoMarcaNada) {
    for (const auto edicion : Ediciones4) {
        r.MODIFAPARTADO4 = true;
        sinCambios([&] { abrir(edicion); });
        EXPECT_FALSE(r.MODIFAPARTADO4);
        for (const auto* casilla : pantalla->findChildren<QCheckBox*>())
            EXPECT_FALSE(casilla->isChecked()) << casilla->objectName().toStdString();
        EXPECT_EQ(texto(u"txtNIF"), QString());
        EXPECT_EQ(texto(u"txtNombre"), QString());
        EXPECT_TRUE(bloqueado(u"txtNIF"));
        EXPECT_TRUE(bloqueado(u"txtNombre"));
    }
}

TEST_F(PantallaApartado4, CadaEdicionDiceSuNombreYEmpiezaPorSuPrimeraCasilla) {
    abrirAntigua();
    EXPECT_EQ(pantalla->objectName(), q(u"frmApartado4"));
    EXPECT_EQ(foco(), q(u"ChkEO1"));
    abrirAntigua(20140101);
    EXPECT_EQ(foco(), q(u"ChkED1"));
    abrir(Edicion::Desde2015);
    EXPECT_EQ(pantalla->objectName(), q(u"frmApartado4_2015"));
    EXPECT_EQ(foco(), q(u"ChkED1"));
}

TEST_F(PantallaApartado4, Desde2014SeVaciaLaEstimacionObjetiva) {
    for (const qint32 fecha : {20140101, 20140102, 20141231, 20150101}) {
        for (const auto* valor : {u"O", u"R", u"E", u"Z"}) {
            r.IRPFOBJET = q(valor);
            r.GuardarDatosAuxiliares();
            abrirAntigua(fecha);
            EXPECT_TRUE(r.IRPFOBJET.vacio());
            EXPECT_FALSE(r.MODIFAPARTADO4);
            for (const auto* nombre : {u"Label2", u"ChkEO1", u"ChkEO2", u"ChkEO3"})
                EXPECT_FALSE(c(nombre)->isVisible()) << s(nombre);
        }
        r.IRPFOBJET = q(u"O");
        pulsar(u"ChkED1");
        EXPECT_TRUE(r.IRPFOBJET.vacio()) << "after each click, too";
    }
}

TEST_F(PantallaApartado4, Antes2014SeConserva) {
    for (const qint32 fecha : {0, 20131231}) {
        r.IRPFOBJET = q(u"R");
        abrirAntigua(fecha);
        EXPECT_EQ(r.IRPFOBJET.recortado(), q(u"R"));
        EXPECT_TRUE(marcada(u"ChkEO2"));
        for (const auto* nombre : {u"Label2", u"ChkEO1", u"ChkEO2", u"ChkEO3"})
            EXPECT_TRUE(c(nombre)->isVisible()) << s(nombre);
        pulsar(u"ChkED1");
        EXPECT_EQ(r.IRPFOBJET.recortado(), q(u"R"));
    }
}

TEST_F(PantallaApartado4, LaEdicionDe2015ConservaLoQueNoMuestra) {
    r.IRPFOBJET = r.IVAAGENCIAS = q(u"O");
    abrir(Edicion::Desde2015);
    pulsar(u"ChkCuoAdu2");
    pulsar(u"ChkED1");
    EXPECT_EQ(r.IRPFOBJET.recortado(), q(u"O"));
    EXPECT_EQ(r.IVAAGENCIAS.recortado(), q(u"O"));
}

TEST_F(PantallaApartado4, LaEdicionAntiguaConservaLasCuotasDeAduanas) {
    r.IVACUOADU = q(u"E");
    abrirAntigua();
    pulsar(u"ChkED1");
    EXPECT_EQ(r.IVACUOADU.recortado(), q(u"E"));
}

TEST_F(PantallaApartado4, ElRegistroDeExportadoresCambiaDeNombreEn2009) {
    const QString antes =
        q(u"- Alta o Baja en el Registro de Exportadores y otros Operadores "
          u"Económicos");
    const QString despues = q(u"- Alta o baja en el Registro de Devoluciones Mensuales");
    const std::pair<qint32, QString> casos[] = {
        {0, antes}, {20081231, antes}, {20090101, despues}, {20150615, despues}};
    for (const auto edicion : Ediciones4)
        for (const auto& [fecha, esperado] : casos) {
            g.FECHADECLARACION = fecha;
            abrir(edicion);
            EXPECT_EQ(rotulo(u"Label7"), esperado) << fecha;
        }
    enEuskera();
    abrir();
    EXPECT_EQ(rotulo(u"Label7"), q(u"- Hileko Itzulketen Erregistroan alta edo baja"));
    g.FECHADECLARACION = 20081231;
    abrir();
    EXPECT_EQ(rotulo(u"Label7"),
              q(u"- Alta edo Baja Esportatzaileen eta beste Operadore Ekonomiko batzuen "
                u"Erregistroan"));
}

struct Bandera {
    QString DatosGeneralesStore::*marca;
    bool sigue;
};
TEST_F(PantallaApartado4, SiguienteSoloSiHayMas) {
    using D = DatosGeneralesStore;
    const Bandera banderas[] = {{&D::Apartado2, false}, {&D::Apartado3, false},
                                {&D::Apartado4, false}, {&D::Apartado5, true},
                                {&D::Apartado6, true},  {&D::Apartado7, true},
                                {&D::AnexoI, true},     {&D::AnexoII, true}};
    for (const auto edicion : Ediciones4) {
        for (const auto& [marca, sigue] : banderas) {
            for (const auto& otra : banderas) g.*otra.marca = q(u" ");
            g.*marca = q(u"X");
            abrir(edicion);
            for (const auto* nombre : {u"cmdSiguiente", u"PicSiguiente"})
                EXPECT_EQ(habilitado(nombre), sigue) << s(nombre);
            for (const auto* nombre : {u"cmdInicio", u"cmdCancelar", u"cmdAnterior"})
                EXPECT_TRUE(habilitado(nombre)) << s(nombre);
        }
    }
}

TEST_F(PantallaApartado4, LaImagenSigueASuBoton) {
    abrir();
    for (const bool sigue : {false, true, false}) {
        c(u"cmdSiguiente")->setEnabled(sigue);
        EXPECT_EQ(habilitado(u"PicSiguiente"), sigue);
    }
}

TEST_F(PantallaApartado4, SiguienteSePoneAlDiaConCadaClic) {
    abrir();
    ASSERT_TRUE(habilitado(u"cmdSiguiente"));
    g.Apartado5 = q(u" ");
    pulsar(u"ChkED1");
    EXPECT_FALSE(habilitado(u"cmdSiguiente"));
    EXPECT_FALSE(habilitado(u"PicSiguiente"));
}

}  // namespace
}  // namespace padral::pruebas
