#include "platform/instance_mark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace padral {

namespace {

constexpr const char* Nombre = "/ZZTT_Padral";
constexpr mode_t ParaTodos = 0666;

// Another user's object is opened without the wish to create it: systems refuse that wish for
// foreign files in shared folders, even where everybody may write.
int abrir(const char* nombre) {
    const int existente = shm_open(nombre, O_RDWR, 0);
    if (existente >= 0) return existente;
    const int nuevo = shm_open(nombre, O_RDWR | O_CREAT, ParaTodos);
    if (nuevo >= 0) fchmod(nuevo, ParaTodos);  // whatever the user's mask is
    return nuevo;
}

int abrirYMarcar(const char* nombre) {
    const int descriptor = abrir(nombre);
    if (descriptor >= 0) flock(descriptor, LOCK_SH | LOCK_NB);
    return descriptor;
}

}  // namespace

void MarcarInstancia() { MarcarInstancia(Nombre); }

void MarcarInstancia(const char* nombre) {
    // Never closed: the lock ends with the process.
    static const int descriptor = abrirYMarcar(nombre);
    static_cast<void>(descriptor);
}

const char* NombreMarcaInstancia() { return Nombre; }

}  // namespace padral
