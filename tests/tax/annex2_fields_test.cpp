// The text fields of Annex II, the identifier and the percentage.

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

class Textos : public PantallaAnexoII, public ::testing::WithParamInterface<Texto2> {
protected:
    QString& propiedad() { return r.*GetParam().propiedad; }
    const char16_t* nombre() const { return GetParam().nombre; }
};

TEST_P(Textos, LoTecleadoSeGuardaAlSalir) {
    for (const auto salir : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        propiedad().clear();
        abrir();
        escribir(nombre(), u"el \"ancla\" #7 [c]");
        EXPECT_EQ(propiedad(), QString()) << "not before";
        EXPECT_FALSE(r.Modificaciones);
        tecla(salir);
        EXPECT_EQ(propiedad(), q(u"EL ANCLA 7 C"));
        EXPECT_EQ(texto(nombre()), q(u"EL ANCLA 7 C"));
        EXPECT_EQ(foco(), q(GetParam().siguiente));
        EXPECT_TRUE(cambiado());
    }
}

TEST_P(Textos, ElMismoTextoNoEsUnCambio) {
    propiedad() = q(u"Como Estaba");
    abrir();
    EXPECT_EQ(texto(nombre()), q(u"Como Estaba"));
    enfocar(nombre());
    sinCambios([&] { tecla(Qt::Key_Tab); });
    EXPECT_FALSE(r.Modificaciones);
    rellenar(nombre(), u"como estaba");
    EXPECT_EQ(propiedad(), q(u"COMO ESTABA"));
    EXPECT_TRUE(cambiado());
    sinCambios([&] { rellenar(nombre(), u"COMO ESTABA"); });
}

TEST_P(Textos, SePuedeVaciar) {
    propiedad() = q(u"ALGO");
    abrir();
    rellenar(nombre(), u"");
    EXPECT_EQ(propiedad(), QString());
    EXPECT_TRUE(r.Modificaciones);
}

TEST_P(Textos, NoTocaOtraPropiedad) {
    completo();
    abrir();
    A2 antes = r;
    rellenar(nombre(), u"otro texto");
    antes.*GetParam().propiedad = q(u"OTRO TEXTO");
    antes.Modificaciones = true;
    EXPECT_TRUE(datos() == antes);
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

TEST_P(Textos, UnTextoLargoGuardadoSigueEntero) {
    propiedad() = QString(200, u'A');
    abrir();
    EXPECT_EQ(texto(nombre()), propiedad());
    enfocar(nombre());
    sinCambios([&] { tecla(Qt::Key_Tab); });
}
INSTANTIATE_TEST_SUITE_P(Todos, Textos, ::testing::ValuesIn(Textos2));

TEST_F(PantallaAnexoII, UnNifValidoSeGuarda) {
    for (const auto* nif : {u"12345678z", u"X1234567L", u"e12345674", u"G12345674"})
        for (const auto salir : {Qt::Key_Tab, Qt::Key_Return}) {
            r.NIFRepresentante.clear();
            abrir();
            escribir(u"txtNIF", nif);
            tecla(salir);
            EXPECT_EQ(r.NIFRepresentante, q(nif).toUpper());
            EXPECT_TRUE(cambiado());
            EXPECT_EQ(foco(), q(u"txtNombre"));
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
}

TEST_F(PantallaAnexoII, UnNifMaloSeRechazaYVuelveElDeAntes) {
    for (const bool euskera : {false, true})
        for (const auto* guardado : {u"", u"12345678Z", u"MALO"})
            for (const auto* nif : {u"12345678A", u"1", u"E12345675"}) {
                if (euskera) enEuskera();
                r.NIFRepresentante = q(guardado);
                abrir();
                escribir(u"txtNIF", nif);
                avisos.Espera(euskera ? q(u"Sartutako IFZa ez da baliagarria")
                                      : q(u"El NIF introducido no es válido"),
                              euskera ? q(u"IFZa ez da baliagarria") : q(u"NIF no válido"));
                sinCambios([&] { tecla(Qt::Key_Tab); });
                avisos.Verificar();
                EXPECT_EQ(texto(u"txtNIF"), q(guardado));
                EXPECT_EQ(foco(), q(u"txtNIF"));
                EXPECT_FALSE(r.Modificaciones);
                tecla(Qt::Key_Tab);
                EXPECT_EQ(foco(), q(u"txtNombre")) << "what was stored holds nobody";
            }
}

TEST_F(PantallaAnexoII, ElNifMaloPierdeElClicQueLoDeja) {
    valida();
    for (const auto* boton :
         {u"cmdInicio", u"cmdAnterior", u"cmdCancelar", u"cmdListaProvincias"}) {
        abrir();
        escribir(u"txtNIF", u"12345678A");
        esperaAviso(545, 158);
        pulsar(boton);
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(foco(), q(u"txtNIF"));
        EXPECT_FALSE(visible(u"lstprovincias"));
    }
}

TEST_F(PantallaAnexoII, ElNifSePuedeVaciar) {
    for (const auto* vacio : {u"", u"  "}) {
        r.NIFRepresentante = q(u"12345678Z");
        abrir();
        rellenar(u"txtNIF", vacio);
        EXPECT_EQ(r.NIFRepresentante, q(vacio));
        EXPECT_TRUE(cambiado());
    }
}

TEST_F(PantallaAnexoII, ElPorcentajeVaDeCeroACien) {
    for (const auto& [escrito, valor] : {std::pair{u"0", 0},
                                         {u"1", 1},
                                         {u"50", 50},
                                         {u"099", 99},
                                         {u"100", 100},
                                         {u"", 0},
                                         {u"4,5", 45},
                                         {u"-7", 7}}) {
        SCOPED_TRACE(s(escrito));
        r.PORCENTAJE = 35;
        abrir();
        rellenar(u"numPorcentaje", escrito);
        EXPECT_EQ(r.PORCENTAJE, valor);
        EXPECT_EQ(texto(u"numPorcentaje"), QString::number(valor));
        EXPECT_TRUE(cambiado());
        EXPECT_EQ(foco(), q(u"cmdInicio"));
    }
}

TEST_F(PantallaAnexoII, ElMismoPorcentajeNoEsUnCambio) {
    r.PORCENTAJE = 35;
    abrir();
    sinCambios([&] { rellenar(u"numPorcentaje", u"035"); });
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"35"));
    r.PORCENTAJE = 101;
    abrir();
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"101"));
    enfocar(u"numPorcentaje");
    sinCambios([&] { tecla(Qt::Key_Tab); });
    EXPECT_EQ(foco(), q(u"cmdInicio"));
}

TEST_F(PantallaAnexoII, MasDeCienSeRechaza) {
    for (const bool euskera : {false, true})
        for (const auto* escrito : {u"101", u"999"}) {
            if (euskera) enEuskera();
            r.PORCENTAJE = 35;
            abrir();
            escribir(u"numPorcentaje", escrito);
            avisos.Espera(
                euskera ? q(u"BEZaren kenkari ehunekoak 100 edo txikiagoa izan behar du")
                        : q(u"El porcentaje de deducción de IVA debe ser menor o igual que 100"),
                euskera ? q(u"BEZaren kenkari ehunekoa ez da baliagarria")
                        : q(u"Porcentaje de deducción de IVA no válido"));
            sinCambios([&] { tecla(Qt::Key_Tab); });
            avisos.Verificar();
            EXPECT_EQ(foco(), q(u"numPorcentaje"));
            EXPECT_EQ(texto(u"numPorcentaje"), q(escrito)) << "to be put right";
            rellenar(u"numPorcentaje", u"100");
            EXPECT_EQ(r.PORCENTAJE, 100);
        }
}

// A refused field holds the user whatever leaves it; put right, the way is open.
TEST_F(PantallaAnexoII, MasDeCienPierdeElClicQueLoDeja) {
    for (const auto* boton : {u"cmdInicio", u"cmdAnterior", u"cmdCancelar", u"PicCan"})
        for (const bool conRevocacion : {false, true}) {
            valida();
            r.PORCENTAJE = 35;
            if (conRevocacion) r.OpcionApl = q(u"R");
            r.RellenarTablaAuxiliar();
            abrir();
            escribir(u"numPorcentaje", u"101");
            avisos.Espera(q(u"El porcentaje de deducción de IVA debe ser menor o igual que 100"),
                          q(u"Porcentaje de deducción de IVA no válido"));
            sinCambios([&] { pulsar(boton); });
            avisos.Verificar();
            EXPECT_EQ(pantallas.Tomar(), QStringList()) << s(boton);
            EXPECT_FALSE(pantallas.EnEspera());
            EXPECT_EQ(foco(), q(u"numPorcentaje"));
            EXPECT_EQ(texto(u"numPorcentaje"), q(u"101"));
            escribir(u"numPorcentaje", u"100");
            pulsar(boton);
            EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen")) << s(boton);
            const bool cancela = q(boton) == q(u"cmdCancelar") || q(boton) == q(u"PicCan");
            EXPECT_EQ(r.PORCENTAJE, cancela ? 35 : 100);
        }
}

// What is typed ends there.
TEST_F(PantallaAnexoII, CadaCampoAdmiteHastaSuLimite) {
    const struct {
        const char16_t* nombre;
        int limite;
        QString A2::*propiedad;
    } textos[] = {{u"txtDomicilio", 80, &A2::DireccionDom},
                  {u"txtNombreMunicipio", 30, &A2::PoblacionDom},
                  {u"txtNacionalidad", 30, &A2::Nacionalidad},
                  {u"txtFormaJuridica", 40, &A2::FormaJuridica},
                  {u"txtNombre", 40, &A2::NombreRepresentante},
                  {u"txtNacionalidadRep", 30, &A2::NacionalidadRepresentante},
                  {u"txtRepDomicilio", 40, &A2::DomicilioRepresentante},
                  {u"txtNombreMunRepr", 25, &A2::NombreMunicipio}};
    const QString largo = q(u"ABCDEFGHIJ").repeated(10);
    abrir();
    for (const auto& [nombre, limite, propiedad] : textos) {
        SCOPED_TRACE(s(nombre));
        ConPantalla::rellenar(q(nombre), largo);
        EXPECT_EQ(texto(nombre), largo.left(limite));
        EXPECT_EQ(r.*propiedad, largo.left(limite));
    }
    escribir(u"txtNIF", u"12345678ZZZ");
    EXPECT_EQ(texto(u"txtNIF"), q(u"12345678Z"));
    tecla(Qt::Key_Tab);
    EXPECT_EQ(r.NIFRepresentante, q(u"12345678Z"));
    enProvinciaPropia();
    abrir();
    for (const auto& [nombre, escrito, queda] : {std::tuple{u"numCodigoMunicipio", u"0691", u"069"},
                                                 {u"numCodigoProvincia", u"281", u"28"},
                                                 {u"numPorcentaje", u"1000", u"100"}}) {
        escribir(nombre, escrito);
        EXPECT_EQ(texto(nombre), q(queda)) << s(nombre);
    }
}

TEST_F(PantallaAnexoII, Desde2014ElPorcentajeNoTieneReglaAlSalirDelAnexo) {
    valida();
    abrir(20140101);
    rellenar(u"numPorcentaje", u"60");
    EXPECT_EQ(r.PORCENTAJE, 60);
    rellenar(u"numPorcentaje", u"0");
    pulsar(u"cmdInicio");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

}  // namespace
}  // namespace padral::pruebas
