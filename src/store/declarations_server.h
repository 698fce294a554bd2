#pragma once
// Declarations and participants of the declarations file.

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

#include "store/busy_timeout.h"
#include "store/row.h"

namespace padral::SvrDPadral {

/// The arrays of one declaration, each in the order of its record.
struct FilasDeclaracion {
    Fila general;      ///< 18 values; element 0 is the key `csde`
    Fila apartado2;    ///< 47
    Fila apartado3;    ///< 23
    Fila apartado4;    ///< 14
    Fila apartado5;    ///< 28
    Fila apartado6;    ///< 4
    Fila apartado7;    ///< 59
    Tabla participes;  ///< 20 columns; not looked at by a save
    qint16 numParti = 0;
    Fila anexoII;  ///< 19
};

/// Criteria of the list by grid column 1 to 4 (element 0 is not used), each empty when not used:
/// identifier from which on, start of the name, start of the reference, date `yyyymmdd` from
/// which on. Compared without regard to case.
using CriteriosLista = std::array<QString, 5>;

/// Rows of the declarations list, column first. Texts of all rows lie in one block, so that
/// 100 000 rows cost a few megabytes.
class ListaDeclaraciones {
public:
    enum Columna { Csde, Dni, Nombre, Referencia, FechaDeclaracion, Causa1, Apartados, Causa2 };

    int Filas() const { return static_cast<int>(filas_.size()); }
    int UltimaFila() const { return Filas() - 1; }
    /// Key of a row.
    qint32 csde(int fila) const { return filas_[static_cast<std::size_t>(fila)].csde; }
    /// Declaration date `yyyymmdd`, 0 none.
    qint32 fecha(int fila) const { return filas_[static_cast<std::size_t>(fila)].fecha; }
    /// One of the text columns.
    QString texto(Columna columna, int fila) const;
    /// Any column as a value.
    QVariant operator()(int columna, int fila) const;

    void Vaciar();
    void Reservar(int filas);
    /// Appends a row; the texts are UTF-8.
    void Anadir(qint32 csde, qint32 fecha, const std::array<std::string_view, 6>& textos);

private:
    static constexpr std::size_t NumTextos = 6;
    struct FilaCompacta {
        qint32 csde;
        qint32 fecha;
        std::array<quint32, NumTextos + 1> inicio;
    };
    std::vector<FilaCompacta> filas_;
    QByteArray textos_;
};

class cDeclaracionesSvr {
public:
    QString mdbname;
    /// Milliseconds that a file locked by another program is waited for.
    int busyTimeout = store::BusyTimeoutMs;

    /// Reads one declaration. A key that the store does not hold gives arrays of "", 0 and blanks.
    void CargarDeclaracion(qint32& csde, FilasDeclaracion& filas) const;
    /// Element 0 of the general data 0: inserts under a new key; otherwise replaces that
    /// declaration. One transaction. Participants do not travel with it. Returns the key.
    qint32 GuardarDeclaracion(const FilasDeclaracion& filas) const;
    /// `orden` is the grid column "1" to "4", `tipoOrden` "ASC" or "DESC"; ties are sorted by key.
    /// Returns the number of rows as text.
    QString DameDeclaraciones(const CriteriosLista& criterios, ListaDeclaraciones& resultado,
                              const QString& orden, const QString& tipoOrden) const;
    /// Deletes all participants of a declaration.
    void EliminarParticipes(qint32 csde) const;
    /// Deletes a declaration; its participants have been deleted before.
    void EliminarDeclaracion(qint32 csde) const;
    /// Inserts the participant of the first row (20 values) under a new key; `cspa` of the row is
    /// not looked at. Returns the key.
    qint32 AñadirParticipe(const Tabla& datos) const;
    /// Updates the participant `cspa` of the first row. One that another running copy of the
    /// program deleted meanwhile comes back under its key, as its declaration does.
    void ModificarParticipe(const Tabla& datos) const;
    void EliminarParticipe(qint32 cspa) const;
};

}  // namespace padral::SvrDPadral
