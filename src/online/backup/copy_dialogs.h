#pragma once
// The port through which backup and restore let the user choose, and show how far they are.

#include <QString>
#include <memory>

namespace padral {

/// What a chooser starts with.
struct Eleccion {
    QString titulo;
    QString carpeta;     ///< an existing one
    QString filtro;      ///< "name (patterns)"; files only
    QString archivo;     ///< name proposed; files only
    quintptr padre = 0;  ///< window handle of the owner; 0 none
    bool operator==(const Eleccion&) const = default;
};

struct RotulosProgreso {
    QString titulo;
    QString cancelar;    ///< caption of the button
    quintptr padre = 0;  ///< window handle of the owner; 0 none
};

/// One piece of long work; it goes from the screen with this object.
class Progreso {
public:
    /// The share of the whole is not known.
    static constexpr int Desconocido = -1;

    virtual ~Progreso() = default;
    /// `milesimas` of the work are done. False: the user wants it given up.
    virtual bool Avanzar(const QString& texto, int milesimas) = 0;
};

class DialogosCopia {
public:
    virtual ~DialogosCopia() = default;
    /// The folder chosen, "" for none.
    virtual QString ElegirCarpeta(const Eleccion& eleccion) = 0;
    /// The existing file chosen, "" for none.
    virtual QString ElegirArchivo(const Eleccion& eleccion) = 0;
    virtual std::unique_ptr<Progreso> Empezar(const RotulosProgreso& rotulos) = 0;
};

/// A filter "name|patterns", the patterns parted by ";", as Qt reads one; a pattern without "*"
/// stands for no kind of file and is left out. "archivos mdb" is said in the language:
/// `idioma` 0 Spanish, anything else Basque.
QString FiltroQt(const QString& filtro, int idioma);

}  // namespace padral
