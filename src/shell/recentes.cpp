#include "shell/recentes.h"

#include "plataforma/texto.h"
#include "shell/registro.h"

namespace tramelo {
namespace {

// Proper case: the first letter of each word upper, the others lower.
std::string Proprio(const std::string& s) {
    std::string minusculo = LCase(s);
    std::string r;
    bool inicio = true;
    for (size_t i = 0; i < minusculo.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(minusculo[i]);
        if (inicio && c >= 'a' && c <= 'z') {
            r += static_cast<char>(c - 32);
        } else if (inicio && c == 0xC3 && i + 1 < minusculo.size()) {
            unsigned char d = static_cast<unsigned char>(minusculo[i + 1]);
            if (d >= 0xA0 && d <= 0xBE && d != 0xB7) d = static_cast<unsigned char>(d - 0x20);
            r += static_cast<char>(c);
            r += static_cast<char>(d);
            ++i;
        } else {
            r += static_cast<char>(c);
        }
        if ((c & 0xC0) != 0x80) inicio = c == ' ' || c == '\t';
        if (c == 0xC3) inicio = false;
    }
    return r;
}

std::string NomeValor(int i) {
    return " " + std::to_string(i);
}

} // namespace

std::array<std::string, 4>& FilesMRU() {
    static std::array<std::string, 4> f;
    return f;
}

void AdicionaMRU(const std::string& Arquivo) {
    auto& f = FilesMRU();
    const std::string alvo = LCase(Arquivo);
    if (Arquivo.empty() || alvo == LCase(f[0])) return;
    int i = 2;
    while (i <= 3) {
        if (alvo == LCase(f[static_cast<size_t>(i - 1)])) break;
        ++i;
    }
    for (int j = i; j >= 2; --j)
        f[static_cast<size_t>(j - 1)] = f[static_cast<size_t>(j - 2)];
    f[0] = Arquivo;
}

std::string EncurtaCaminho(const std::string& F) {
    if (Len(F) < 31) return F;
    // The first three characters stand for the drive part; the folder walk
    // starts behind them.
    std::string t = Left(F, 3);
    int p = 3;
    for (;;) {
        int q = InStr(p + 1, F, "/");
        if (q == 0) break;
        std::string pasta = Mid(F, p + 1, q - 1 - p);
        if (q - 1 > p + 5)
            t += Proprio(Left(pasta, 3)) + "../";
        else
            t += Proprio(pasta) + "/";
        p = q;
    }
    return t + Mid(F, p + 1);
}

void AtualizaMRU(MenuRecentes& Janela) {
    const auto& f = FilesMRU();
    for (int i = 1; i <= 4; ++i) {
        const std::string& F = f[static_cast<size_t>(i - 1)];
        EntradaMenu& e = Janela.mnuArquivoMRU[static_cast<size_t>(i - 1)];
        e.Caption = "&" + std::to_string(i) + " " + EncurtaCaminho(F);
        e.Visible = !F.empty();
    }
    Janela.mnuArquivoMRUVazio.Visible = !Janela.mnuArquivoMRU[0].Visible;
}

void CarregaMRU() {
    for (int i = 1; i <= 4; ++i)
        FilesMRU()[static_cast<size_t>(i - 1)] = LeConfig("FilesMRU", NomeValor(i));
}

void GravaMRU() {
    for (int i = 1; i <= 4; ++i) {
        const std::string& F = FilesMRU()[static_cast<size_t>(i - 1)];
        if (F.empty()) break;
        GravaConfig("FilesMRU", NomeValor(i), F);
    }
}

} // namespace tramelo
