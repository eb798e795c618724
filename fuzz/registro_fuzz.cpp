// The settings store's file reader: arbitrary bytes as each root's file, then
// the reads the program makes at start and one write, which must keep a
// damaged root aside and start a fresh one.
#include "apoio.h"

#include "shell/registro.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t n) {
    using namespace tramelo;
    const std::string& pasta = fuzz::PastaDoFuzz();
    fuzz::GravaEntrada("config/registro-usuario.json", dados, n);
    fuzz::GravaEntrada("registro-maquina.json", dados, n);
    fuzz::GravaEntrada("registro-classes.json", dados, n);
    LeConfig("ConfigGeral", "Dicas");
    LeConfig("FilesMRU", "Arquivo1");
    LeConfig("System", "Path");
    LeChave(HKEY_CLASSES_ROOT, ".trl", "");
    LeChave(HKEY_CURRENT_USER, "", "");
    // The first key of the root, whatever its name, with each of its values.
    LeChave(HKEY_LOCAL_MACHINE, "Software\\Quillon\\Tramelo\\2.0\\System", "Path");
    GravaConfig("ConfigGeral", "Dicas", "1");
    if (LeConfig("ConfigGeral", "Dicas") != "1") std::abort();
    std::remove((pasta + "/config/registro-usuario.json.danificado").c_str());
    return 0;
}
