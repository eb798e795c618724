// The last four calculation files, offered in the "Arquivos recentes" menu of
// every window. The list lives once; each window's menu is a view of it.
#pragma once

#include <array>
#include <string>

namespace tramelo {

// Index 0 is the latest. Empty entries only follow used ones.
std::array<std::string, 4>& FilesMRU();

// Puts a file first; a file already listed moves up (case is ignored), the
// last entry drops out. Never fails.
void AdicionaMRU(const std::string& Arquivo);

struct EntradaMenu {
    std::string Caption;
    bool Visible = false;
    bool Enabled = true;
};

// A window's recent-files menu entries.
struct MenuRecentes {
    std::array<EntradaMenu, 4> mnuArquivoMRU;
    EntradaMenu mnuArquivoMRUVazio{"Vazio", true, false};
};

// Rewrites a window's entries from the list: entry i reads "&i " and the
// path, shortened, and shows only when it has a file; "Vazio" shows when
// the first doesn't.
void AtualizaMRU(MenuRecentes& Janela);

// A path for a menu caption: under 31 characters whole; longer, its root
// ("/", or a drive's first 3 characters such as "C:/"), then each folder name of more than 5 characters as its first 3
// in proper case and "../", the others whole in proper case and "/", then
// the file name as it stands.
std::string EncurtaCaminho(const std::string& F);

} // namespace tramelo
