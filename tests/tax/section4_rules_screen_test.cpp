// What the rules of section 4 say on the screen when it is left, and where they put the focus.

#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

constexpr const char16_t* Salidas[] = {u"cmdInicio", u"cmdAnterior", u"cmdSiguiente"};

class Reglas4Pantalla : public PantallaApartado4, public ::testing::WithParamInterface<Edicion> {
protected:
    /// Leaves by every way; each time exactly these messages come and the screen stays.
    void rechazan(const std::vector<std::pair<QString, QString>>& mensajes,
                  const char16_t* focoEsperado = nullptr) {
        const bool habiaCambios = r.MODIFAPARTADO4;
        for (const auto* boton : Salidas) {
            SCOPED_TRACE(s(boton));
            for (const auto& [mensaje, titulo] : mensajes) avisos.Espera(mensaje, titulo);
            sinCambios([&] { pulsar(boton); });
            avisos.Verificar();
            EXPECT_EQ(pantallas.Tomar(), QStringList());
            EXPECT_FALSE(pantallas.EnEspera());
            EXPECT_EQ(foco(), focoEsperado ? q(focoEsperado) : q(boton));
            EXPECT_EQ(r.MODIFAPARTADO4, habiaCambios);
            EXPECT_FALSE(r.Lleno);
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
    }
    const QString Fallo = q(u"Fallo en la validación");
    const QString SinDatos = q(u"Debe existir algún dato en el apartado 4...");
    const QString Caja =
        q(u"Régimen especial del criterio de caja no puede tener valor alguno al "
          u"tratarse de una declaración anterior  al 01/01/2014");
    const QString NifMalo = q(u"El NIF no es válido...");
};

TEST_P(Reglas4Pantalla, SinNingunDatoNoSeSale) {
    abrir(GetParam());
    rechazan({{SinDatos, Fallo}});
    r.MODIFAPARTADO4 = true;
    rechazan({{SinDatos, Fallo}});
}

TEST_P(Reglas4Pantalla, CualquierSolicitudEsUnDato) {
    for (const auto& fila : Filas4)
        for (const bool cambios : {false, true}) {
            SCOPED_TRACE(fila.propiedad);
            r.LIMPIARDATOS();
            r.*fila.miembro = q(fila.casillas.back().valor);
            if (fila.miembro == &DatosApartado4::IVACAJA) g.FECHAVIGOR = 20150101;
            if (fila.miembro == &DatosApartado4::IRPFOBJET) g.FECHAVIGOR = 20131231;
            abrir(GetParam());
            r.MODIFAPARTADO4 = cambios;
            pulsar(u"cmdInicio");
            EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
        }
}

// The screen clears both fields when it opens: what is left is nothing.
TEST_P(Reglas4Pantalla, SoloLaEntidadNoEsUnDato) {
    r.NIF = q(u"E12345674");
    r.NOMBRE = q(u"COFRADIA");
    abrir(GetParam());
    rechazan({{SinDatos, Fallo}});
}

TEST_P(Reglas4Pantalla, ElCriterioDeCajaNoExisteAntesDe2014) {
    for (const auto* valor : {u"O", u"R", u"E"})
        for (const bool cambios : {false, true}) {
            valida();
            r.IVACAJA = q(valor);
            abrir(GetParam());
            r.MODIFAPARTADO4 = cambios;
            g.FECHAVIGOR = 20131231;
            rechazan({{Caja, q(u"Ap4- Fallo en la validación")}});
        }
}

TEST_P(Reglas4Pantalla, LaCajaSolaCuentaComoDatoPeroSeRechaza) {
    r.IVACAJA = q(u"O");
    abrir(GetParam());
    g.FECHAVIGOR = 20131231;
    rechazan({{Caja, q(u"Ap4- Fallo en la validación")}});
}

TEST_P(Reglas4Pantalla, ElCriterioDeCajaValeDesde2014) {
    r.IVACAJA = q(u"O");
    g.FECHAVIGOR = 20140101;
    abrir(GetParam());
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

// A stored identifier that is wrong: the field was not touched in this run.
TEST_P(Reglas4Pantalla, UnNifMaloGuardadoDaDosMensajes) {
    const struct {
        const char16_t* nif;
        const char16_t* mensaje;
        bool alCampo;
    } casos[] = {
        {u"E1234567", u"El NIF debe tener 9 caracteres", true},
        {u"A12345674", u"El NIF debe empezar por ´E´, ´G´, ´J´ o ´H´", false},
        {u"E12345675", u"El NIF no es válido", false},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.nif));
        socio(caso.nif, u"");
        abrir(GetParam());
        r.MODIFAPARTADO4 = true;
        for (const auto* boton : Salidas) {
            avisos.Espera(q(caso.mensaje), q(u"Fallo en el NIF"));
            avisos.Espera(NifMalo, Fallo);
            sinCambios([&] { pulsar(boton); });
            avisos.Verificar();
            EXPECT_EQ(pantallas.Tomar(), QStringList());
            EXPECT_EQ(foco(), caso.alCampo ? q(u"txtNIF") : q(boton));
            EXPECT_TRUE(r.MODIFAPARTADO4);
            if (!caso.alCampo) continue;
            // Leaving the field says it again, and the click is spent on that.
            avisos.Espera(q(caso.mensaje), q(u"Fallo en el NIF"));
            pulsar(boton);
            avisos.Verificar();
            abrir(GetParam());
            r.MODIFAPARTADO4 = true;
        }
    }
}

TEST_P(Reglas4Pantalla, UnNifMaloGuardadoNoSeMiraSinCambios) {
    socio(u"E1234567", u"");
    abrir(GetParam());
    pulsar(u"cmdInicio");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

TEST_P(Reglas4Pantalla, ElSocioDiceElNombre) {
    for (const auto* nombre : {u"", u"   "}) {
        socio(u"E12345674", nombre);
        abrir(GetParam());
        r.MODIFAPARTADO4 = true;
        rechazan({{q(u"Debe introducirse el Nombre..."), Fallo}}, u"txtNombre");
    }
}

TEST_P(Reglas4Pantalla, ElSocioPuedeNoDecirElNif) {
    socio(u"", u"COFRADIA");
    abrir(GetParam());
    r.MODIFAPARTADO4 = true;
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_TRUE(r.Lleno);
}

TEST_P(Reglas4Pantalla, ElNoSocioNoDiceNada) {
    r.IVASOCIO = q(u"N");
    abrir(GetParam());
    r.MODIFAPARTADO4 = true;
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

TEST_P(Reglas4Pantalla, EnEuskera) {
    enEuskera();
    const QString titulo = q(u"Akatsa balioztatzean");
    abrir(GetParam());
    rechazan({{q(u"4. atalean daturen batek egon behar du..."), titulo}});
    r.IVACAJA = q(u"O");
    abrir(GetParam());
    g.FECHAVIGOR = 20131231;
    rechazan({{estado.Texto(871), q(u"Ap4- ") + titulo}});
    r.IVACAJA = Letra();
    socio(u"E12345675", u"");
    abrir(GetParam());
    r.MODIFAPARTADO4 = true;
    rechazan({{q(u"IFZa ez da baliagarria"), q(u"Akatsa IFZan")},
              {q(u"IFZa ez da baliagarria..."), titulo}});
    socio(u"E12345674", u"");
    abrir(GetParam());
    r.MODIFAPARTADO4 = true;
    rechazan({{q(u"Izena idatzi behar da..."), titulo}}, u"txtNombre");
}

INSTANTIATE_TEST_SUITE_P(Ediciones, Reglas4Pantalla, ::testing::ValuesIn(Ediciones4),
                         [](const auto& i) {
                             return i.param == Edicion::Hasta2014 ? "Hasta2014" : "Desde2015";
                         });

}  // namespace
}  // namespace padral::pruebas
