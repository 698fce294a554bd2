#pragma once
// A named system object that tells outside tools, such as an installer, that the program runs.

namespace padral {

/// Makes the object "ZZTT_Padral" and keeps it for the life of the process. Every running copy
/// holds a shared lock on it, so a tool that gets an exclusive lock knows that none runs. Nothing
/// is examined and nothing fails: a second copy starts as well.
void MarcarInstancia();
/// The same with an object of another name, which begins with "/". For the first call only.
void MarcarInstancia(const char* nombre);

/// Name of the object as this system shows it.
const char* NombreMarcaInstancia();

}  // namespace padral
