#pragma once
// A document on a printer of the system or in a PDF file.

#include <QPainter>
#include <QPrinter>
#include <functional>
#include <memory>
#include <vector>

#include "printing/printer_port.h"

namespace padral {

/// A page is kept until it ends and then painted in one go, so that a page given up half-way
/// never reaches the paper.
class ImpresoraQt : public Impresora {
public:
    /// `impresora` is set up for its queue or file; `margen` in millimetres from the corner of
    /// the paper to the origin of the form.
    ImpresoraQt(std::shared_ptr<QPrinter> impresora, QPointF margen);
    ~ImpresoraQt() override;

    void Imprimir(const QString& texto) override;
    Mm AnchoTexto(const QString& texto) const override;
    Mm AltoTexto(const QString& texto) const override;
    void Linea(Punto desde, Punto hasta, Color color) override;
    void Caja(Punto desde, Punto hasta, Color color) override;
    void CajaRellena(Punto desde, Punto hasta, Color color) override;
    void PintarImagen(const QString& nombre, Punto en, std::optional<Tamano> tamano) override;
    void FinPagina() override;
    void Cerrar() override;

private:
    using Trazo = std::function<void(QPainter&)>;

    double puntos(double mm) const;
    Mm milimetros(double puntos) const;
    QPointF lugar(Punto p) const;
    QRectF rectangulo(Punto desde, Punto hasta) const;
    QFont fuente() const;
    QPen pluma(Color color) const;
    void empezarPagina();
    [[noreturn]] void fallar() const;
    void comprobarCola() const;
    void comprobarFichero() const;

    std::shared_ptr<QPrinter> impresora_;
    QPointF margen_;
    QPainter pintor_;
    std::vector<Trazo> pagina_;
    int paginas_ = 0;
};

}  // namespace padral
