#include "participants/participants_list.h"

namespace padral {

void cParLista::CargarDatos(const Tabla& filas) {
    LimpiarTablaParticipes();
    const QString modo = declaracion_.Modo == u"A" ? QStringLiteral("A") : QStringLiteral("C");
    for (int i = 0; i < generales_.NumParti; ++i) {
        auto& actual = participantes_.ParticipeActual;
        actual = std::make_shared<cParticipes>(participantes_, rutaBDModificacion_);
        actual->CargarDatos(filas.FilaEntera(i), catalogo_);
        actual->Modo = modo;
        actual->RellenarTablaAuxiliar();
        participantes_.colParticipes.push_back(actual);
    }
    participantes_.ParticipeActual.reset();
    declaracion_.NumParti = static_cast<qint16>(participantes_.colParticipes.size());
}

void cParLista::InicializarListaParticipes() {
    if (Inicializado) return;
    Inicializar();
    Inicializado = true;
}

void cParLista::Inicializar() {
    static_cast<DatosParLista&>(*this) = {};
    TS_CLEAR();
}

}  // namespace padral
