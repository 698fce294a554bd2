// The entity of which the declarant is a member: its identifier and its name.

#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

class Entidad4 : public PantallaApartado4, public ::testing::WithParamInterface<Edicion> {
protected:
    void abrirSocio(const char16_t* nif = u"E12345674", const char16_t* nombre = u"COFRADIA") {
        r.LIMPIARDATOS();
        socio(nif, nombre);
        abrir(GetParam());
    }
    void esperaAbiertos(bool abiertos) {
        for (const auto* campo : {u"txtNIF", u"txtNombre"}) {
            EXPECT_EQ(bloqueado(campo), !abiertos) << s(campo);
            EXPECT_EQ(fondo(q(campo)),
                      abiertos ? QApplication::palette().color(QPalette::Base).rgb() : 0xFFE0E0E0);
            EXPECT_EQ((c(campo)->focusPolicy() & Qt::TabFocus) != 0, abiertos);
        }
    }
    void esperaVacios() {
        EXPECT_TRUE(r.NIF.vacio());
        EXPECT_TRUE(r.NOMBRE.vacio());
        EXPECT_EQ(texto(u"txtNIF"), QString());
        EXPECT_EQ(texto(u"txtNombre"), QString());
        esperaAbiertos(false);
    }
};

TEST_P(Entidad4, SiendoSocioSeMuestraYSeAbre) {
    abrirSocio();
    EXPECT_EQ(texto(u"txtNIF"), q(u"E12345674"));
    EXPECT_EQ(texto(u"txtNombre"), q(u"COFRADIA"));
    esperaAbiertos(true);
}

TEST_P(Entidad4, SinSerSocioSeVaciaAlAbrir) {
    for (const auto* respuesta : {u" ", u"N", u"Z"}) {
        socio();
        r.IVASOCIO = q(respuesta);
        abrir(GetParam());
        esperaVacios();
        EXPECT_EQ(r.IVASOCIO.texto(), q(respuesta));
        EXPECT_FALSE(r.MODIFAPARTADO4);
    }
}

TEST_P(Entidad4, DejarDeSerSocioLosBorra) {
    for (const auto* casilla : {u"ChkSO2", u"ChkSO1"}) {
        abrirSocio();
        pulsar(casilla);
        esperaVacios();
        EXPECT_TRUE(r.MODIFAPARTADO4);
        pulsar(u"ChkSO1");
        EXPECT_EQ(r.IVASOCIO.recortado(), q(u"S"));
        esperaAbiertos(true);
        EXPECT_EQ(texto(u"txtNIF"), QString()) << "for good";
        EXPECT_EQ(texto(u"txtNombre"), QString());
    }
}

TEST_P(Entidad4, CancelarLosDevuelve) {
    abrirSocio();
    pulsar(u"ChkSO2");
    pulsar(u"cmdCancelar");
    EXPECT_EQ(r.IVASOCIO.recortado(), q(u"S"));
    EXPECT_EQ(r.NIF.recortado(), q(u"E12345674"));
    EXPECT_EQ(r.NOMBRE.recortado(), q(u"COFRADIA"));
}

// The fields close before the focus goes on: it passes them.
TEST_P(Entidad4, TrasElNoElFocoNoQuedaEnUnCampoCerrado) {
    abrirSocio();
    pulsar(u"ChkSO2");
    EXPECT_EQ(foco(), q(u"ChkSONF1"));
}

TEST_P(Entidad4, OtraCasillaNoLosToca) {
    abrirSocio();
    pulsar(u"ChkED1");
    EXPECT_EQ(r.NIF.recortado(), q(u"E12345674"));
    EXPECT_EQ(texto(u"txtNombre"), q(u"COFRADIA"));
}

TEST_P(Entidad4, UnNifValidoSeGuarda) {
    for (const auto* nif : {u"E12345674", u"G12345674", u"H12345674", u"J12345674", u"J1234567D"})
        for (const auto salida : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
            abrirSocio(u"");
            escribir(u"txtNIF", nif);
            tecla(salida);
            EXPECT_EQ(r.NIF.recortado(), q(nif));
            EXPECT_TRUE(r.MODIFAPARTADO4);
            EXPECT_EQ(foco(), q(u"txtNombre"));
        }
}

TEST_P(Entidad4, SeEscribeEnMayusculas) {
    abrirSocio(u"", u"");
    rellenar(u"txtNIF", u"j1234567d");
    EXPECT_EQ(r.NIF.recortado(), q(u"J1234567D"));
    EXPECT_EQ(texto(u"txtNIF"), q(u"J1234567D"));
    rellenar(u"txtNombre", u"pena el \"cano\"#['] s.l.");
    EXPECT_EQ(r.NOMBRE.recortado(), q(u"PENA EL CANO S.L."));
    EXPECT_EQ(texto(u"txtNombre"), q(u"PENA EL CANO S.L."));
    EXPECT_EQ(foco(), q(u"ChkSONF1"));
}

TEST_P(Entidad4, ElMismoTextoNoEsUnCambio) {
    abrirSocio();
    sinCambios([&] {
        rellenar(u"txtNIF", u"e12345674");
        rellenar(u"txtNombre", u"cofradia");
    });
    EXPECT_FALSE(r.MODIFAPARTADO4);
}

TEST_P(Entidad4, LoGuardadoEnMinusculasSeMuestraEnMayusculasAlSalir) {
    abrirSocio(u"E12345674", u"cofradia");
    EXPECT_EQ(texto(u"txtNombre"), q(u"cofradia"));
    enfocar(u"txtNombre");
    sinCambios([&] { tecla(Qt::Key_Tab); });
    EXPECT_EQ(texto(u"txtNombre"), q(u"COFRADIA"));
    EXPECT_FALSE(r.MODIFAPARTADO4);
}

TEST_P(Entidad4, VaciosNoSeComprueban) {
    for (const auto* vacio : {u"", u"   "}) {
        abrirSocio();
        rellenar(u"txtNIF", vacio);
        EXPECT_TRUE(r.NIF.vacio());
        EXPECT_TRUE(cambiado());
        rellenar(u"txtNombre", vacio);
        EXPECT_TRUE(r.NOMBRE.vacio());
        EXPECT_TRUE(cambiado());
    }
}

struct NifMalo {
    const char16_t* nif;
    const char16_t* mensaje;
    int texto;
};
const NifMalo NifsMalos[] = {
    {u"E1234567", u"El NIF debe tener 9 caracteres", 69},
    {u"A", u"El NIF debe tener 9 caracteres", 69},
    {u"A12345674", u"El NIF debe empezar por ´E´, ´G´, ´J´ o ´H´", 71},
    {u"12345678Z", u"El NIF debe empezar por ´E´, ´G´, ´J´ o ´H´", 71},
    {u"_12345674", u"El NIF debe empezar por ´E´, ´G´, ´J´ o ´H´", 71},
    {u"E12345675", u"El NIF no es válido", 70},
    {u"E1234567D", u"El NIF no es válido", 70},
    {u"H12 45674", u"El NIF no es válido", 70},
};

TEST_P(Entidad4, UnNifMaloDevuelveElFocoYElTextoQueda) {
    for (const auto& malo : NifsMalos)
        for (const auto salida : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return}) {
            SCOPED_TRACE(s(malo.nif));
            abrirSocio();
            escribir(u"txtNIF", malo.nif);
            avisos.Espera(q(malo.mensaje), q(u"Fallo en el NIF"));
            sinCambios([&] { tecla(salida); });
            avisos.Verificar();
            EXPECT_EQ(foco(), q(u"txtNIF"));
            EXPECT_EQ(texto(u"txtNIF"), q(malo.nif));
            EXPECT_FALSE(r.MODIFAPARTADO4);
        }
}

TEST_P(Entidad4, EnEuskeraTambien) {
    enEuskera();
    for (const auto& malo : NifsMalos) {
        abrirSocio();
        escribir(u"txtNIF", malo.nif);
        avisos.Espera(estado.Texto(malo.texto), q(u"Akatsa IFZan"));
        tecla(Qt::Key_Tab);
        avisos.Verificar();
    }
}

TEST_P(Entidad4, ConUnNifMaloNingunaOrdenSigue) {
    for (const auto* boton :
         {u"cmdInicio", u"cmdCancelar", u"cmdAnterior", u"cmdSiguiente", u"PicCan", u"ChkSO2"}) {
        SCOPED_TRACE(s(boton));
        abrirSocio();
        escribir(u"txtNIF", u"E12345675");
        esperaAviso(70, 68);
        sinCambios([&] { pulsar(boton); });
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(foco(), q(u"txtNIF"));
        EXPECT_TRUE(marcada(u"ChkSO1"));
        EXPECT_FALSE(marcada(u"ChkSO2"));
    }
}

TEST_P(Entidad4, CerradosPasanElFocoACancelar) {
    r.LIMPIARDATOS();
    abrir(GetParam());
    for (const auto* campo : {u"txtNIF", u"txtNombre"}) {
        enfocar(u"ChkED1");
        sinCambios([&] { pulsar(campo); });
        EXPECT_EQ(foco(), q(u"cmdCancelar"));
        enfocar(u"ChkED1");
        c(campo)->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(foco(), q(u"cmdCancelar"));
    }
}

TEST_P(Entidad4, AlEntrarSeSeleccionaTodo) {
    abrirSocio();
    for (const auto* campo : {u"txtNIF", u"txtNombre"}) {
        enfocar(campo);
        EXPECT_EQ(c<QLineEdit>(campo)->selectedText(), texto(campo));
        enfocar(u"ChkED1");
        pulsar(campo);
        EXPECT_EQ(c<QLineEdit>(campo)->selectedText(), texto(campo));
    }
}

TEST_P(Entidad4, NueveYCuarentaCaracteres) {
    abrirSocio(u"", u"");
    escribir(u"txtNIF", u"E123456749");
    EXPECT_EQ(texto(u"txtNIF"), q(u"E12345674"));
    rellenar(u"txtNombre", u"ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJX");
    EXPECT_EQ(r.NOMBRE.texto(), q(u"ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJ"));
}

INSTANTIATE_TEST_SUITE_P(Ediciones, Entidad4, ::testing::ValuesIn(Ediciones4), [](const auto& i) {
    return i.param == Edicion::Hasta2014 ? "Hasta2014" : "Desde2015";
});

}  // namespace
}  // namespace padral::pruebas
