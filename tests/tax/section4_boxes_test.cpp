// Every box of section 4: what a click writes, shows and where it leaves the focus.

#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

class Casillas4 : public PantallaApartado4, public ::testing::WithParamInterface<FilaEsperada> {
protected:
    const FilaEsperada& fila() const { return GetParam(); }
    QString propiedad() const { return (r.*fila().miembro).recortado(); }
    /// Opens each edition that has the row, with a blank record.
    void enCadaEdicion(const std::function<void()>& hacer) {
        for (const auto edicion : Ediciones4) {
            if (!fila().esta(edicion)) continue;
            SCOPED_TRACE(edicion == Edicion::Hasta2014 ? "2014" : "2015");
            g.FECHAVIGOR = edicion == Edicion::Hasta2014 ? 20131231 : 20150101;
            r.LIMPIARDATOS();
            abrir(edicion);
            hacer();
        }
    }
    /// The stop after a box of this row.
    QString siguienteA(const char16_t* nombre) {
        const QStringList todas = paradas();
        return todas.value(todas.indexOf(q(nombre)) + 1);
    }
};

TEST_P(Casillas4, CadaUnaEscribeSuValor) {
    for (const auto& casilla : fila().casillas)
        enCadaEdicion([&] {
            pulsar(casilla.nombre);
            EXPECT_EQ(propiedad(), q(casilla.valor));
            esperaMarcada(fila(), casilla.nombre);
            EXPECT_TRUE(cambiado());
        });
}

TEST_P(Casillas4, UnaQuitaLasOtras) {
    for (const auto& primera : fila().casillas)
        for (const auto& segunda : fila().casillas) {
            if (primera.nombre == segunda.nombre) continue;
            enCadaEdicion([&] {
                pulsar(primera.nombre);
                ASSERT_TRUE(cambiado());
                pulsar(segunda.nombre);
                EXPECT_EQ(propiedad(), q(segunda.valor));
                esperaMarcada(fila(), segunda.nombre);
                EXPECT_TRUE(cambiado());
            });
        }
}

TEST_P(Casillas4, DesmarcarLaDejaEnBlanco) {
    for (const auto& casilla : fila().casillas)
        enCadaEdicion([&] {
            pulsar(casilla.nombre);
            ASSERT_TRUE(cambiado());
            pulsar(casilla.nombre);
            EXPECT_EQ((r.*fila().miembro).texto(), q(u" "));
            esperaMarcada(fila(), u"");
            EXPECT_TRUE(cambiado());
        });
}

TEST_P(Casillas4, SoloCambiaSuPropiedad) {
    for (const auto& casilla : fila().casillas)
        enCadaEdicion([&] {
            DatosApartado4 esperado;
            esperado.*fila().miembro = q(casilla.valor);
            pulsar(casilla.nombre);
            EXPECT_TRUE(datos() == esperado);
        });
}

TEST_P(Casillas4, ElFocoPasaALaCasillaSiguiente) {
    const auto& casillas = fila().casillas;
    for (std::size_t i = 0; i + 1 < casillas.size(); ++i)
        enCadaEdicion([&] {
            for (int veces = 0; veces < 2; ++veces) {
                pulsar(casillas[i].nombre);
                EXPECT_EQ(foco(), q(casillas[i + 1].nombre));
            }
        });
}

TEST_P(Casillas4, DeLaUltimaPasaALaParadaSiguiente) {
    const auto* ultima = fila().casillas.back().nombre;
    enCadaEdicion([&] {
        const QString esperada = siguienteA(ultima);
        for (int veces = 0; veces < 2; ++veces) {
            pulsar(ultima);
            EXPECT_EQ(foco(), esperada);
        }
    });
}

TEST_P(Casillas4, ConElTeclado) {
    for (const auto& casilla : fila().casillas)
        enCadaEdicion([&] {
            enfocar(casilla.nombre);
            tecla(Qt::Key_Space);
            EXPECT_EQ(propiedad(), q(casilla.valor));
            EXPECT_TRUE(cambiado());
            EXPECT_NE(foco(), q(casilla.nombre));
        });
}

TEST_P(Casillas4, IntroPasaSinResponder) {
    for (const auto& casilla : fila().casillas)
        for (const auto intro : {Qt::Key_Return, Qt::Key_Enter})
            enCadaEdicion([&] {
                const QString esperada = siguienteA(casilla.nombre);
                enfocar(casilla.nombre);
                sinCambios([&] { tecla(intro); });
                EXPECT_EQ(foco(), esperada);
                EXPECT_FALSE(cambiado());
            });
}

TEST_P(Casillas4, LaFlechaMarcaElFoco) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto& casilla : fila().casillas)
            enCadaEdicion([&] {
                const QString suyo = q(euskera ? casilla.euskera : casilla.castellano);
                enfocar(u"cmdInicio");
                EXPECT_EQ(rotulo(casilla.nombre), suyo);
                enfocar(casilla.nombre);
                EXPECT_EQ(rotulo(casilla.nombre), q(u" ==>"));
                enfocar(u"cmdInicio");
                EXPECT_EQ(rotulo(casilla.nombre), suyo);
            });
    }
}

TEST_P(Casillas4, SeMuestraLoGuardado) {
    for (const auto& casilla : fila().casillas)
        enCadaEdicion([&] {
            r.*fila().miembro = q(casilla.valor);
            if (fila().miembro == &DatosApartado4::IVASOCIO) socio();
            r.*fila().miembro = q(casilla.valor);
            const Letra guardado = r.*fila().miembro;
            abrir(fila().esta(Edicion::Hasta2014) && g.FECHAVIGOR < 20150101 ? Edicion::Hasta2014
                                                                             : Edicion::Desde2015);
            esperaMarcada(fila(), casilla.nombre);
            EXPECT_EQ(r.*fila().miembro, guardado);
            EXPECT_FALSE(r.MODIFAPARTADO4);
        });
}

TEST_P(Casillas4, UnValorDesconocidoNoMarcaNinguna) {
    enCadaEdicion([&] {
        r.*fila().miembro = q(u"Z");
        static_cast<frmApartado4*>(pantalla.get())->PresentaDatos();
        esperaMarcada(fila(), u"");
    });
}

// The record may hold already what the click says. Only companies count every click.
TEST_P(Casillas4, UnClicQueNoCambiaNadaNoEsUnCambio) {
    const bool siempre = fila().miembro == &DatosApartado4::SONF;
    for (const auto& casilla : fila().casillas)
        enCadaEdicion([&] {
            r.*fila().miembro = q(casilla.valor);
            pulsar(casilla.nombre);
            EXPECT_EQ(propiedad(), q(casilla.valor));
            esperaMarcada(fila(), casilla.nombre);
            EXPECT_EQ(cambiado(), siempre);
            r.*fila().miembro = Letra();
            pulsar(casilla.nombre);
            EXPECT_EQ(propiedad(), QString());
            EXPECT_EQ(cambiado(), siempre);
        });
}

TEST_P(Casillas4, LaComparacionNoDistingueMinusculas) {
    for (const auto& casilla : fila().casillas) {
        if (fila().miembro == &DatosApartado4::SONF) continue;
        enCadaEdicion([&] {
            r.*fila().miembro = q(casilla.valor).toLower();
            pulsar(casilla.nombre);
            EXPECT_EQ(propiedad(), q(casilla.valor).toLower());
            EXPECT_FALSE(cambiado());
        });
    }
}

TEST_P(Casillas4, SinSalirDelNifNoSeResponde) {
    if (fila().miembro == &DatosApartado4::IVASOCIO) return;
    const auto* casilla = fila().casillas.front().nombre;
    enCadaEdicion([&] {
        socio();
        static_cast<frmApartado4*>(pantalla.get())->PresentaDatos();
        escribir(u"txtNIF", u"E12345678");
        esperaAviso(70, 68);
        sinCambios([&] { pulsar(casilla); });
        avisos.Verificar();
        esperaMarcada(fila(), u"");
        EXPECT_EQ(foco(), q(u"txtNIF"));
        EXPECT_FALSE(cambiado());
    });
}

INSTANTIATE_TEST_SUITE_P(Filas, Casillas4, ::testing::ValuesIn(Filas4),
                         [](const auto& i) { return i.param.propiedad; });

// The order in which the boxes of both editions stand.
TEST_F(PantallaApartado4, ElTabuladorVaDeFilaEnFila) {
    for (const auto edicion : Ediciones4)
        for (const bool socios : {false, true}) {
            r.LIMPIARDATOS();
            if (socios) socio();
            g.FECHAVIGOR = 20131231;
            abrir(edicion);
            QStringList esperadas;
            for (const auto& fila : Filas4) {
                if (!fila.esta(edicion)) continue;
                for (const auto& casilla : fila.casillas) esperadas << q(casilla.nombre);
                if (socios && fila.miembro == &DatosApartado4::IVASOCIO)
                    esperadas << q(u"txtNIF") << q(u"txtNombre");
            }
            esperadas << q(u"cmdInicio") << q(u"cmdCancelar") << q(u"cmdAnterior")
                      << q(u"cmdSiguiente");
            EXPECT_EQ(paradas(), esperadas);
        }
}

TEST_F(PantallaApartado4, CadaEdicionConSusFilas) {
    for (const auto edicion : Ediciones4) {
        abrir(edicion);
        for (const auto& fila : Filas4) {
            EXPECT_EQ(hay(fila.etiqueta), fila.esta(edicion)) << fila.propiedad;
            for (const auto& casilla : fila.casillas)
                EXPECT_EQ(hay(casilla.nombre), fila.esta(edicion)) << s(casilla.nombre);
        }
    }
}

}  // namespace
}  // namespace padral::pruebas
