#pragma once
// Fresh data files in a folder of the test, gone with it.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/shared_state.h"
#include "store/declarations_server.h"
#include "store/new_files.h"

namespace padral::pruebas {

/// What the declarations list shows of a declaration; flags are the eight characters.
struct FilaLista {
    QString dni, nombre, referencia;
    qint32 fecha = 0;
    QString causa1;
    QString causa2 = {};
    QString apartados = QStringLiteral("        ");
};

/// A declarations file without declarations, for the paths of a run.
class AlmacenPrueba {
public:
    explicit AlmacenPrueba(EstadoCompartido& estado) : estado_(estado) {
        estado.CarpetaPrograma = carpeta_.path();
        estado.RutaTablas = carpeta_.path() + u'/';
        estado.RutaBDLectura = estado.RutaTablas + QStringLiteral("DPadralLec.mdb");
        estado.RutaBDModificacion = estado.RutaTablas + QStringLiteral("DPadralMod.mdb");
        store::CreateDeclarationsFile(estado.RutaBDModificacion);
    }

    /// Copies the catalogue file that the build makes.
    void PonerCatalogo() {
        const QString hecho = QStringLiteral(PADRAL_BINARY_DIR "/data/DPadralLec.mdb");
        ASSERT_TRUE(QFile::copy(hecho, estado_.RutaBDLectura)) << hecho.toStdString();
    }

    SvrDPadral::cDeclaracionesSvr Servidor() const {
        SvrDPadral::cDeclaracionesSvr svr;
        svr.mdbname = estado_.RutaBDModificacion;
        return svr;
    }

    /// Stores a declaration and returns its key.
    qint32 Guardar(const FilaLista& f) {
        SvrDPadral::FilasDeclaracion filas;
        filas.general = {0,           f.dni,    f.nombre,  f.referencia, f.fecha,   0,
                         0,           f.causa1, f.causa2,  QString(),    QString(), 0,
                         f.apartados, 0,        QString(), QString(),    QString(), QString()};
        return Servidor().GuardarDeclaracion(filas);
    }

    QString Carpeta() const { return carpeta_.path(); }

private:
    QTemporaryDir carpeta_;
    EstadoCompartido& estado_;
};

}  // namespace padral::pruebas
