#pragma once
// The model beside the walk: what the records, the screens and the file have to hold after each
// step, from what they held before it.

#include <QStringList>

#include "app/program.h"
#include "walk/walk_effects.h"
#include "walk/walk_store.h"
#include "walk/walk_walker.h"

namespace padral::pruebas {

class ModeloDelPaseo {
public:
    /// `fichero` is the declarations file of the program.
    ModeloDelPaseo(Programa& programa, const QString& fichero);

    /// After a step: what does not fit; empty: all does. `pendiente` names a field in which
    /// something unfinished stands.
    QStringList Despues(const Accion& accion, const QString& pendiente, bool hablo);
    /// What a property held after the last step.
    QString Valor(const QString& propiedad) const { return antes_.retrato.value(propiedad); }

    int Guardadas = 0, Borradas = 0, Abiertas = 0;
    QMap<QString, int> Visitas;

private:
    struct Momento {
        QString formulario;  ///< open screen or print dialog; empty: none
        Retrato retrato;
        QMap<QString, bool> modificado;
        bool pendientes = false;
        qint32 csde = 0;
        QString modo;
        QMap<QString, QString> mostrado;
        QString pendiente;
        QString marcas;  ///< of the sections, as a save would write them
    };

    Momento mirar() const;

    // The steps, in walk_model.cpp.
    void cotejarPaso(const Accion& accion, const Momento& ahora, bool hablo);
    void cotejarApertura(const Accion& accion, const Momento& ahora);
    void cotejarCierre(const Momento& ahora);
    void cotejarCambios(const Accion& accion, const Momento& ahora);
    void cotejarEscrito(const Accion& accion, const Momento& ahora, bool hablo);
    void cotejarSalida(const Accion& accion, const Momento& ahora);
    void cotejarRegreso(const Momento& ahora);
    void anotarSordera(const Accion& accion, const Momento& ahora);
    void darPorAceptado(const Momento& momento);

    // The file, in walk_model_store.cpp.
    void cotejarFichero(const Accion& accion, const Momento& ahora);
    void cotejarGuardada(const Almacen& nuevo);
    void cotejarBorrada(const Almacen& nuevo);
    void cotejarOtras(const Almacen& nuevo, const QList<qint64>& salvo);

    // What always holds, in walk_model_window.cpp.
    void cotejarVentana(const Momento& ahora);
    QStringList silenciosos(const Momento& ahora) const;
    void cotejarMenus(bool abierta);
    void cotejarFoco(const QWidget* pantalla);
    void cotejarGenerales(const QWidget& pantalla, const Momento& ahora);

    void falta(const QString& texto) { faltas_ << texto; }

    Programa& programa_;
    QString fichero_;
    QByteArray bytes_;
    Almacen almacen_;
    Momento antes_;
    QStringList faltas_;
    /// Values of each section when it was last accepted: what Cancel brings back.
    QMap<QString, Retrato> aceptado_;
    /// What each screen showed when it was left, with the records of that moment.
    QMap<QString, Momento> dejada_;
    /// What the field that was not left yet will hold.
    std::optional<QString> espera_;
    /// The code of the activity was written: until the record is shown again section 3 takes no
    /// answer to the residence and no choice of its lists.
    bool sorda_ = false;
};

}  // namespace padral::pruebas
