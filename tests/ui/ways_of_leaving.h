#pragma once
// The ways in which a user leaves a field, as rows.

#include "ui/window_fixture.h"

namespace padral::pruebas {

enum class Salida {
    Tab,
    TabAtras,
    Intro,
    OtroCampo,
    Boton,
    Casilla,
    EtiquetaDeCasilla,
    Imagen,
    Pestana,
    TeclaDelBoton,
    TeclaDeLaCasilla,
    Programa
};

struct Camino {
    Salida salida;
    const char* nombre;
    /// The command that follows the check, "" for none.
    const char* orden;
};

inline constexpr Camino Caminos[] = {
    {Salida::Tab, "Tab", ""},
    {Salida::TabAtras, "TabAtras", ""},
    {Salida::Intro, "Intro", ""},
    {Salida::OtroCampo, "OtroCampo", ""},
    {Salida::Boton, "Boton", "boton"},
    {Salida::Casilla, "Casilla", "casilla"},
    {Salida::EtiquetaDeCasilla, "EtiquetaDeCasilla", "casilla"},
    {Salida::Imagen, "Imagen", "boton"},
    {Salida::Pestana, "Pestana", "pestaña"},
    {Salida::TeclaDelBoton, "TeclaDelBoton", "boton"},
    {Salida::TeclaDeLaCasilla, "TeclaDeLaCasilla", "casilla"},
    {Salida::Programa, "Programa", "programa"},
};

inline void PrintTo(const Camino& camino, std::ostream* salida) { *salida << camino.nombre; }

class SalidasDelCampo : public VentanaConCampos, public ::testing::WithParamInterface<Camino> {
protected:
    void salir() {
        switch (GetParam().salida) {
            case Salida::Tab:
                return Teclear(campo, Qt::Key_Tab);
            case Salida::TabAtras:
                return Teclear(campo, Qt::Key_Backtab, Qt::ShiftModifier);
            case Salida::Intro:
                return Teclear(campo, Qt::Key_Return);
            case Salida::OtroCampo:
                return Pulsar(otro);
            case Salida::Boton:
                return Pulsar(boton);
            case Salida::Casilla:
                return PulsarCasilla(casilla);
            case Salida::EtiquetaDeCasilla:
                return Pulsar(etiqueta, {3, 3});
            case Salida::Imagen:
                return Pulsar(imagen, {8, imagen->height() / 2});
            case Salida::Pestana:
                return Pulsar(pestanas, pestanas->tabRect(1).center());
            case Salida::TeclaDelBoton:
                return Teclear(campo, Qt::Key_G, Qt::AltModifier);
            case Salida::TeclaDeLaCasilla:
                return Teclear(campo, Qt::Key_M, Qt::AltModifier);
            case Salida::Programa:
                if (guardia.ConfirmarCampoEnFoco()) hechos << QStringLiteral("programa");
        }
    }

    /// What happens when the field is accepted and the command runs.
    static QStringList todo() {
        QStringList hechos{QStringLiteral("comprobar")};
        const QString orden = QString::fromUtf8(GetParam().orden);
        if (!orden.isEmpty()) hechos << orden;
        return hechos;
    }
};

}  // namespace padral::pruebas
