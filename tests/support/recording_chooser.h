#pragma once
// Recording implementation of the choosers and the progress of backup and restore.

#include <QStringList>
#include <functional>
#include <vector>

#include "online/backup/copy_dialogs.h"

namespace padral::pruebas {

/// Answers each chooser with the path given, "" for none.
class GrabadorDialogos : public DialogosCopia {
public:
    QString Elegido;
    std::vector<Eleccion> Elecciones;
    /// Runs while a chooser shows.
    std::function<void()> alElegir;
    /// Decides at each step of long work whether to go on.
    std::function<bool(const QString& texto, int milesimas)> alAvanzar;
    /// Texts of the progress, each once for as long as it stays.
    QStringList Textos;
    std::vector<int> Milesimas;
    RotulosProgreso Rotulos;
    bool EnMarcha = false;

    QString ElegirCarpeta(const Eleccion& eleccion) override { return elegir(eleccion); }
    QString ElegirArchivo(const Eleccion& eleccion) override { return elegir(eleccion); }
    std::unique_ptr<Progreso> Empezar(const RotulosProgreso& rotulos) override {
        Rotulos = rotulos;
        return std::make_unique<Marcha>(*this);
    }

private:
    class Marcha : public Progreso {
    public:
        explicit Marcha(GrabadorDialogos& grabador) : grabador_(grabador) {
            grabador.EnMarcha = true;
        }
        ~Marcha() override { grabador_.EnMarcha = false; }
        Marcha(const Marcha&) = delete;
        Marcha& operator=(const Marcha&) = delete;

        bool Avanzar(const QString& texto, int milesimas) override {
            if (grabador_.Textos.isEmpty() || grabador_.Textos.back() != texto)
                grabador_.Textos << texto;
            grabador_.Milesimas.push_back(milesimas);
            return !grabador_.alAvanzar || grabador_.alAvanzar(texto, milesimas);
        }

    private:
        GrabadorDialogos& grabador_;
    };

    QString elegir(const Eleccion& eleccion) {
        Elecciones.push_back(eleccion);
        if (alElegir) alElegir();
        return Elegido;
    }
};

}  // namespace padral::pruebas
