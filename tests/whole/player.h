#pragma once
// Plays the commands of a file on the real screens and looks at what the screens then show.

#include <QAbstractItemModel>

#include "app/program.h"
#include "app/tour/guide.h"
#include "script.h"
#include "support/recorders.h"

namespace padral::pruebas {

/// What the controls of a screen show, by name; those that show nothing are left out. A ticked box
/// shows "X".
using Mostrado = QMap<QString, QString>;

class Interprete {
public:
    Interprete(Programa& programa, Guia& guia, GrabadorAvisos& avisos)
        : programa_(programa), guia_(guia), avisos_(avisos) {}

    /// Plays the commands in order. Each must raise exactly its messages. False: the road ended at
    /// a control that is not there; the test has failed.
    bool Jugar(const Guion& guion, const std::vector<Paso>& pasos);
    /// From the general data of an open declaration through every screen that the file names, with
    /// the buttons that lead to the next: each shows what was entered and nothing else.
    bool Recorrer(const Guion& guion);

    /// What was entered belongs to another declaration.
    void Olvidar() { entrado_.clear(); }

    bool EsEuskera() const { return programa_.estado().DesplazamientoIdioma != 0; }

private:
    void jugar(const Paso& paso);
    void abrir(const QString& pantalla);
    void escribir(const Paso& paso);
    void elegir(const Paso& paso);
    void seleccionar(const QString& nif);
    void marcar(const QString& control, bool marcada);
    void esperar(const AvisoDelGuion& aviso);
    QString textoDe(const QStringList& partes) const;

    QWidget* pantalla(const QString& cabecera) const;
    void pasarA(const QString& cabecera);
    Mostrado esperado(const QString& cabecera, const std::vector<Paso>& correcciones) const;
    Mostrado visible(const QString& cabecera);
    void leerControles(QWidget* pantalla, Mostrado& mostrado) const;
    static void leerLista(const QAbstractItemModel& modelo, Mostrado& mostrado);
    bool conGuia(const Guion& guion, const std::function<void()>& hacer);

    Programa& programa_;
    Guia& guia_;
    GrabadorAvisos& avisos_;
    QString cabecera_;                 ///< of the screen whose commands are played
    QMap<QString, Mostrado> entrado_;  ///< what was left on each screen
    int linea_ = 0;
};

}  // namespace padral::pruebas
