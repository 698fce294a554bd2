#pragma once
// A printer that writes down every operation with the drawing state of the moment. Its fonts have
// a fixed metric, so that positions can be computed.

#include <QStringList>
#include <memory>
#include <vector>

#include "printing/printer_port.h"

namespace padral::test {

struct Operacion {
    enum Tipo { Texto, Linea, Caja, CajaRellena, Imagen };
    Tipo tipo = Texto;
    EstadoDibujo estado;
    QString texto;  ///< text printed, or name of the picture
    Punto desde, hasta;
    Color color = 0;
    std::optional<Tamano> tamano;
    int pagina = 1;
};

/// What was drawn on one document.
struct Documento {
    QString titulo;
    std::vector<Operacion> operaciones;
    int paginasTerminadas = 0;
    bool cerrado = false;    ///< handed over
    bool destruido = false;  ///< the printer is gone

    std::vector<Operacion> De(Operacion::Tipo tipo) const;
    /// Texts of the document in their order.
    QStringList Textos() const;
};

/// Width in millimetres per point and character: bold is wider, italics are narrower, so that a
/// measure taken in the wrong state shows.
inline constexpr float AnchoLetra = 0.20F, AnchoNegrita = 0.22F, RestaCursiva = 0.02F;
/// Height in millimetres per point.
inline constexpr float AltoLetra = 0.4F;
float AnchoFijo(const QString& texto, float cuerpo, bool negrita, bool cursiva);

class RecordingPrinter : public Impresora {
public:
    /// `fallaEn`: number of the operation (from 1) that throws, 0 none.
    explicit RecordingPrinter(std::shared_ptr<Documento> documento, int fallaEn = 0)
        : documento_(std::move(documento)), fallaEn_(fallaEn) {}
    ~RecordingPrinter() override { documento_->destruido = true; }

    void Imprimir(const QString& texto) override;
    Mm AnchoTexto(const QString& texto) const override;
    Mm AltoTexto(const QString& texto) const override;
    void Linea(Punto desde, Punto hasta, Color color) override;
    void Caja(Punto desde, Punto hasta, Color color) override;
    void CajaRellena(Punto desde, Punto hasta, Color color) override;
    void PintarImagen(const QString& nombre, Punto en, std::optional<Tamano> tamano) override;
    void FinPagina() override;
    void Cerrar() override { documento_->cerrado = true; }

private:
    void anotar(Operacion operacion);
    std::shared_ptr<Documento> documento_;
    int fallaEn_;
    int hechas_ = 0;
};

/// Gives recording printers; keeps what each of them drew.
class FabricaRegistro : public FabricaImpresora {
public:
    std::vector<std::shared_ptr<Documento>> documentos;
    /// Document (from 0) whose printer fails at operation `fallaEn`.
    int documentoQueFalla = -1;
    int fallaEn = 0;

    std::unique_ptr<Impresora> Abrir(const QString& titulo) override;
};

}  // namespace padral::test
