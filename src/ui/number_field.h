#pragma once

#include "ui/entry_field.h"

namespace padral {

/// A numeric entry: digits only and, where its format has decimals, one comma, which a point
/// types too, with at most two digits behind it.
class CajaNum : public CampoEntrada {
    Q_OBJECT
public:
    /// `enteros` digits before the comma; `formato` as in ValorFormateado: "#####" shows 0 as
    /// nothing, "00000" pads.
    CajaNum(const QString& nombre, int enteros, const QString& formato, QWidget* padre = nullptr);

    /// Shows a value in the format, or in another one, and keeps it as `OldValue`. A text that is
    /// no number counts as 0; a value too large for the field is shown whole.
    void AsignarValorFormateado(const QString& valor, const QString& formato = {});
    void Presentar(qint32 valor) { AsignarValorFormateado(QString::number(valor)); }
    /// Shows nothing for 0.
    void PresentarSinCero(qint32 valor);
    /// The number typed, without its decimals; 0 for an empty field.
    qint32 Valor() const;

    const QString& Formato() const { return formato_; }
    /// The text that was shown last from code.
    const QString& OldValue() const { return oldValue_; }

protected:
    QString admitido(const QString& texto) const override;
    void dropEvent(QDropEvent* evento) override;

private:
    bool conDecimales() const { return formato_.contains(u'.'); }
    bool cabe(const QString& texto) const;
    QString admitidoConDecimales(const QString& texto) const;
    void ponerTope(qsizetype longitud);

    QString formato_, oldValue_;
    int enteros_;
    int soltado_ = -1;  ///< where a drop goes in; below 0 while there is none
};

}  // namespace padral
