#include "support/recording_printer.h"

#include "platform/failure.h"
#include "printing/pictures.h"

namespace padral::test {

std::vector<Operacion> Documento::De(Operacion::Tipo tipo) const {
    std::vector<Operacion> elegidas;
    for (const auto& o : operaciones)
        if (o.tipo == tipo) elegidas.push_back(o);
    return elegidas;
}

QStringList Documento::Textos() const {
    QStringList textos;
    for (const auto& o : De(Operacion::Texto)) textos << o.texto;
    return textos;
}

float AnchoFijo(const QString& texto, float cuerpo, bool negrita, bool cursiva) {
    const float letra = (negrita ? AnchoNegrita : AnchoLetra) - (cursiva ? RestaCursiva : 0);
    return letra * cuerpo * static_cast<float>(texto.size());
}

void RecordingPrinter::anotar(Operacion operacion) {
    if (++hechas_ == fallaEn_)
        throw Fallo(QStringLiteral("La impresora no responde."),
                    QStringLiteral("Inprimagailuak ez du erantzuten."));
    operacion.estado = estado;
    operacion.pagina = documento_->paginasTerminadas + 1;
    documento_->operaciones.push_back(std::move(operacion));
}

void RecordingPrinter::Imprimir(const QString& texto) {
    Operacion o;
    o.tipo = Operacion::Texto;
    o.texto = texto;
    o.desde = estado.punto;
    anotar(o);
    estado.punto.x += AnchoTexto(texto);
}

Mm RecordingPrinter::AnchoTexto(const QString& texto) const {
    return AnchoFijo(texto, estado.cuerpo, estado.negrita, estado.cursiva);
}

Mm RecordingPrinter::AltoTexto(const QString& /*texto*/) const { return AltoLetra * estado.cuerpo; }

void RecordingPrinter::Linea(Punto desde, Punto hasta, Color color) {
    anotar({Operacion::Linea, {}, {}, desde, hasta, color, std::nullopt});
}

void RecordingPrinter::Caja(Punto desde, Punto hasta, Color color) {
    anotar({Operacion::Caja, {}, {}, desde, hasta, color, std::nullopt});
}

void RecordingPrinter::CajaRellena(Punto desde, Punto hasta, Color color) {
    anotar({Operacion::CajaRellena, {}, {}, desde, hasta, color, std::nullopt});
}

void RecordingPrinter::PintarImagen(const QString& nombre, Punto en, std::optional<Tamano> tamano) {
    BuscarImagen(nombre);
    anotar({Operacion::Imagen, {}, nombre, en, {}, 0, tamano});
}

void RecordingPrinter::FinPagina() { ++documento_->paginasTerminadas; }

std::unique_ptr<Impresora> FabricaRegistro::Abrir(const QString& titulo) {
    const int numero = static_cast<int>(documentos.size());
    documentos.push_back(std::make_shared<Documento>());
    documentos.back()->titulo = titulo;
    return std::make_unique<RecordingPrinter>(documentos.back(),
                                              numero == documentoQueFalla ? fallaEn : 0);
}

}  // namespace padral::test
