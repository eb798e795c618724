// File channel 1: all the program's file input and output runs on this one
// channel, so only one file is open at a time. A routine that fails between
// opening and closing leaves the channel taken, and the next open fails with
// 55 "Arquivo já aberto": callers rely on that.
//
// Files are Windows-1252 with CR LF line ends; texts are UTF-8 in memory.
// Writing goes to a hidden temporary file beside the target, which replaces
// the target only when the channel is closed, so a save that fails half-way
// leaves the earlier file as it was.
#pragma once

#include <concepts>
#include <cstdio>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tramelo {

// One item of a written line: a string goes between double quotes as it
// stands (no escape), a number as plain digits.
class ItemArquivo {
  public:
    ItemArquivo(std::string_view texto) : texto_(texto), numero_(false) {}
    ItemArquivo(const char* texto) : ItemArquivo(std::string_view(texto)) {}
    ItemArquivo(const std::string& texto) : ItemArquivo(std::string_view(texto)) {}
    template <typename T>
    requires(std::integral<T> || std::floating_point<T>) &&
        (!std::same_as<T, bool>)ItemArquivo(T numero)
        : texto_(FormaNumero(static_cast<double>(numero))),
    numero_(true) {}

    // The item as it stands in the file (still UTF-8).
    std::string FormaEscrita() const;

  private:
    // Whole numbers as digits with no decimal mark. Others, which the files
    // of this program never hold, with "." as the decimal mark, the one the
    // lenient reading takes, since a decimal comma would split the item.
    static std::string FormaNumero(double x);

    std::string texto_;
    bool numero_;
};

class CanalArquivo {
  public:
    CanalArquivo() = default;
    CanalArquivo(const CanalArquivo&) = delete;
    CanalArquivo& operator=(const CanalArquivo&) = delete;
    ~CanalArquivo();

    // Open ... For Output: replaces the file at close. 55 if taken; 76 when
    // the folder doesn't exist; 75 when it can't be written there.
    void AbreSaida(const std::string& arquivo);
    // Open ... For Input. 55 if taken; 53 when there is no such file; 76 when
    // its folder doesn't exist; 75 when it can't be read.
    void AbreEntrada(const std::string& arquivo);
    // Close: an output file takes the target's place now. Closing a free
    // channel does nothing. The channel is free afterwards even if the
    // replacement fails (61 disk full, 75 no access), the target untouched.
    void Fecha();

    bool Ocupado() const { return modo_ != Modo::Livre; }
    // Frees the channel without finishing anything: a pending output is
    // thrown away and the target keeps its earlier content. For tests and
    // the program's end.
    void Reinicia();

    // Write #1: the items separated by commas, then CR LF.
    void Escreve(std::initializer_list<ItemArquivo> itens);
    // Print #1 with ";": the text as it stands, no line end.
    void Imprime(std::string_view texto);
    // Blanks up to the given column of the line (from 1); past it, the next line.
    void Tab(int coluna);
    // CR LF.
    void NovaLinha();

    // Input #1: the next item, by the rules of the classic comma-delimited
    // input. 62 at the end of the file.
    std::string LeItem();
    // Line Input #1: the rest of the line without its end (CR LF, CR or LF).
    // 62 at the end of the file.
    std::string LeLinha();
    // EOF(1): nothing left to read.
    bool Eof() const;

  private:
    enum class Modo { Livre, Saida, Entrada };
    void ExigeSaida() const;
    void ExigeEntrada() const;
    void Grava(std::string_view bytes);
    void DescartaTemporario();

    Modo modo_ = Modo::Livre;
    // Output: the target, the temporary beside it and its stream.
    std::filesystem::path alvo_;
    std::filesystem::path temporario_;
    std::FILE* saida_ = nullptr;
    int coluna_ = 1;
    // Input: the whole file, read at open, and the place of the next byte.
    std::string bytes_;
    std::size_t pos_ = 0;
};

// The program's channel 1.
CanalArquivo& canal1();

// A number from an item read: the classic lenient conversion rounded to a
// 16-bit integer, failing with 6 when it doesn't fit.
short NumeroDoItem(std::string_view item);

} // namespace tramelo
