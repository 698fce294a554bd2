#pragma once
// What the programs of the authority share: validity of an identifier, the name of the office.

#include <QString>
#include <functional>

namespace padral::SvrBaseComunLib {

/// How the online help reaches the user.
struct ServicioOnline {
    /// Opens a page in the browser.
    std::function<void(const QString& direccion)> abrir;
    /// Shows the description of the service over the window `Parent`.
    std::function<void(const QString& texto, quintptr Parent)> describir;
};

class cMiscelaneos {
public:
    cMiscelaneos() = default;
    explicit cMiscelaneos(ServicioOnline servicio) : servicio_(std::move(servicio)) {}

    /// Language of the other members: 0 Spanish; anything else Basque (1000 for printing, 10000
    /// for help and online calls).
    int Idioma = 0;
    /// Window handle of the owner of what is shown; 0 none.
    quintptr Parent = 0;

    /// True exactly for a well-formed Spanish tax identifier of 9 characters, upper case, with
    /// the control digit or letter right. Persons: 8 digits or one of K L M X Y Z with 7 digits
    /// (X, Y, Z count as 0, 1, 2), then the letter by the remainder modulo 23. Entities: a letter,
    /// 7 digits, control from the digits' sums: a digit for A B E H, a letter for N P Q R S W,
    /// either for the others.
    bool ValidaNifCif(const QString& nif) const;
    /// Name of the tax office in the language of `Idioma`.
    QString HaciendaFiscalidad() const;
    /// Opens the page of the online help, in the language of `Idioma`.
    void AccesoAyuOnline() const;
    /// Shows what the online help offers, in the language of `Idioma`.
    void MostrarOnlineInfo() const;

private:
    ServicioOnline servicio_;
};

/// Web address of the authority, printed under the name of the office.
QString DireccionWebAutoridad();

}  // namespace padral::SvrBaseComunLib
