#include "ajuda_portugues.h"

namespace tramelo {
namespace {

// The option or argument a message names, as the parser writes it: before
// `fim` ("NAME is required", "NAME: reason"), or in "Could not convert:
// NAME = values".
std::string NomeNaMensagem(std::string mensagem, const std::string& fim) {
    const std::string conversao = "Could not convert: ";
    if (mensagem.rfind(conversao, 0) == 0) {
        mensagem.erase(0, conversao.size());
        return mensagem.substr(0, mensagem.find(" = "));
    }
    const size_t k = mensagem.find(fim);
    return k == std::string::npos ? std::string() : mensagem.substr(0, k);
}

std::string Juntos(const std::vector<std::string>& textos) {
    std::string s;
    for (const std::string& t : textos)
        s += (s.empty() ? "" : " ") + t;
    return s;
}

} // namespace

void PreparaEmPortugues(CLI::App& app) {
    auto formatador = std::make_shared<CLI::Formatter>();
    formatador->label("Usage", "Uso");
    formatador->label("OPTIONS", "OPÇÕES");
    formatador->label("Positionals", "Argumentos");
    formatador->label("REQUIRED", "OBRIGATÓRIO");
    formatador->label("TEXT", "TEXTO");
    formatador->label("Env", "Variável");
    formatador->label("Needs", "Requer");
    formatador->label("Excludes", "Exclui");
    app.formatter(formatador);
    app.option_defaults()->group("Opções");
    app.set_help_flag("-h,--help", "Mostra esta ajuda e sai");
}

std::string MensagemEmPortugues(const CLI::App& app, const CLI::ParseError& erro) {
    const std::string texto = erro.what();
    if (dynamic_cast<const CLI::ExtrasError*>(&erro)) {
        const std::vector<std::string> sobra = app.remaining();
        return (sobra.size() > 1 ? "argumentos não esperados: " : "argumento não esperado: ") +
               Juntos(sobra);
    }
    if (dynamic_cast<const CLI::RequiredError*>(&erro)) {
        const std::string nome = NomeNaMensagem(texto, " is required");
        return nome.empty() ? "falta um argumento obrigatório" : "falta o argumento obrigatório " + nome;
    }
    if (dynamic_cast<const CLI::RequiresError*>(&erro)) {
        const size_t k = texto.find(" requires ");
        if (k != std::string::npos)
            return texto.substr(0, k) + " só vale com " + texto.substr(k + 10);
    }
    const std::string nome = NomeNaMensagem(texto, ": ");
    if (dynamic_cast<const CLI::ConversionError*>(&erro) ||
        dynamic_cast<const CLI::ArgumentMismatch*>(&erro) ||
        dynamic_cast<const CLI::ValidationError*>(&erro))
        return nome.empty() ? "valor não aceito numa opção" : "valor não aceito em " + nome;
    return "opções inválidas";
}

} // namespace tramelo
