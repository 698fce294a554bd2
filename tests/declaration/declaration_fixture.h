#pragma once
// One open declaration with recording ports and files of its own.

#include <gtest/gtest.h>

#include "declaration/declaration.h"
#include "sections/record_checks.h"
#include "support/recorders.h"
#include "support/store_fixture.h"

namespace padral::pruebas {

/// The recorder of screens, with some screens that the program does not have.
class PantallasConHuecos : public GrabadorPantallas {
public:
    QStringList ausentes;
    bool Disponible(const QString& nombre) const override { return !ausentes.contains(nombre); }
};

/// An aggregate with its run; no file is there yet.
class ConDeclaracion : public ::testing::Test {
protected:
    void enEuskera() {
        estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
        estado.fecha.fecidioma = QStringLiteral("E");
    }
    /// The next message is a question with the exclamation icon, OK and Cancel.
    void esperaPregunta(const QString& texto, const QString& titulo, Respuesta respuesta) {
        avisos.Espera({texto, titulo, Icono::Exclamacion, Botones::AceptarCancelar}, respuesta);
    }
    void esperaPregunta(int texto, int titulo, Respuesta respuesta) {
        esperaPregunta(estado.Texto(texto), estado.Texto(titulo), respuesta);
    }
    /// The next message has the information icon and OK.
    void esperaAviso(int texto, int titulo) {
        avisos.Espera(estado.Texto(texto), estado.Texto(titulo));
    }

    std::shared_ptr<cParticipes> nuevoParticipe(const char16_t* dni, const char16_t* modo,
                                                qint32 cspa) {
        auto p = std::make_shared<cParticipes>(d.participantes, estado.RutaBDModificacion);
        p->DNI = q(dni);
        p->Modo = q(modo);
        p->cspa = cspa;
        return p;
    }
    /// A participant of the open declaration, counted.
    std::shared_ptr<cParticipes> ponerParticipe(const char16_t* dni, const char16_t* modo,
                                                qint32 cspa = 0) {
        auto p = nuevoParticipe(dni, modo, cspa);
        d.participantes.colParticipes.push_back(p);
        d.IncrementarNumParti();
        return p;
    }

    GrabadorAvisos avisos;
    PantallasConHuecos pantallas;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    cDecLista lista{estado};
    cDeclaraciones d{estado, pantallas, lista};
    cDatosGenerales& g{d.general};
};

/// The same with a declarations file and the catalogue of the build.
class ConAlmacen : public ConDeclaracion {
protected:
    void SetUp() override {
        almacen.PonerCatalogo();
        estado.mdi.LeerFechaMinimaMaxima();
    }
    /// A second run's aggregate over the same files.
    struct OtraRun {
        explicit OtraRun(const EstadoCompartido& de) {
            estado.RutaBDLectura = de.RutaBDLectura;
            estado.RutaBDModificacion = de.RutaBDModificacion;
        }
        GrabadorAvisos avisos;
        GrabadorPantallas pantallas;
        RelojFijo reloj;
        EstadoCompartido estado{avisos, reloj};
        cDecLista lista{estado};
        cDeclaraciones d{estado, pantallas, lista};
    };
    int declaracionesGuardadas() {
        SvrDPadral::ListaDeclaraciones filas;
        return almacen.Servidor()
            .DameDeclaraciones({}, filas, QStringLiteral("1"), QStringLiteral("ASC"))
            .toInt();
    }

    AlmacenPrueba almacen{estado};
};

}  // namespace padral::pruebas
