// The words of section 4 in the language of the run.

#include "sections/tax/screen/frm_apartado4.h"
#include "sections/tax/screen/frm_apartado4_dots.h"
#include "sections/tax/screen/frm_apartado4_tables.h"

namespace padral {

using namespace apartado4;

namespace {

constexpr int TituloApartado4 = 1, Flecha = 40, NifEntidad = 21, NombreEntidad = 20;
/// The register of exporters became the one of monthly refunds.
constexpr int RegistroExportadores = 25, DevolucionesMensuales = 836;
constexpr qint32 InicioDevoluciones = 20090101;

/// A caption as it is read aloud: without the dash and the blanks that only place it.
QString leido(const QString& texto) {
    QString limpio = texto.simplified();
    while (limpio.startsWith(u'-') || limpio.startsWith(u' ')) limpio.remove(0, 1);
    return limpio;
}

}  // namespace

QString frmApartado4::textoDe(const Rotulo& rotulo) const {
    if (rotulo.texto == RegistroExportadores &&
        declaracion_.general.FECHADECLARACION >= InicioDevoluciones)
        return QStringLiteral("- ") + Texto(DevolucionesMensuales);
    return Texto(rotulo.texto);
}

QString frmApartado4::rotuloDe(const CasillaFila& respuesta) const {
    const QString numero = QString::fromUtf16(respuesta.numero);
    return respuesta.texto == 0 ? numero : Texto(respuesta.texto) + numero;
}

void frmApartado4::Anadir_captions() {
    setWindowTitle(Texto(TituloApartado4));
    for (const auto& [etiqueta, id] : etiquetas_) etiqueta->setText(Texto(id));
    for (const auto& fila : filas_) rotularFila(fila);
    txtNIF_->setAccessibleName(Texto(NifEntidad));
    txtNombre_->setAccessibleName(Texto(NombreEntidad));
    botones_->Anadir_captions(estado_);
}

// A box says what it answers, and its column when its caption has only the number.
void frmApartado4::rotularFila(const Fila& fila) {
    QString pregunta = textoDe(fila.solicitud->etiqueta);
    if (fila.etiqueta == lblSONF_) {
        lblSONF_->PonerTexto(pregunta);
        pregunta = lblSONF_->SinPuntos();
    } else {
        fila.etiqueta->setText(pregunta);
    }
    for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
        if (!fila.casillas[i]) continue;
        const auto& respuesta = fila.solicitud->respuestas[i];
        QString nombre = rotuloDe(respuesta);
        fila.casillas[i]->PonerRotulos(nombre, Texto(Flecha));
        if (respuesta.texto == 0) nombre = Texto(fila.cabecera->columnas[i].texto) + u' ' + nombre;
        fila.casillas[i]->setAccessibleName(leido(pregunta) + QStringLiteral(": ") + leido(nombre));
    }
}

}  // namespace padral
