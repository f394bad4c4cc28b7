#include "platform/record_store/Query_Text.h"

#include <algorithm>
#include <vector>

#include "platform/record_store/Field_Layout.h"

namespace Record_Store {
namespace {

struct Token {
  enum Kind { Name, Sign, Other };

  Kind kind;
  std::string_view text;
  int depth = 0;  // of brackets

  bool Is(std::string_view word) const { return Same_Name(text, word); }
};

bool Is_Blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool Is_Name_Part(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

// Behind the closing sign, two of which in a row stand for one of the quoted.
std::size_t Quote_End(std::string_view text, std::size_t at) {
  const char close = text[at] == '[' ? ']' : text[at];
  for (++at; at < text.size(); ++at) {
    if (text[at] != close) continue;
    if (close == ']' || at + 1 == text.size() || text[at + 1] != close) return at + 1;
    ++at;
  }
  return text.size();
}

std::size_t Token_End(std::string_view text, std::size_t at) {
  if (std::string_view("'\"`[").find(text[at]) != std::string_view::npos) {
    return Quote_End(text, at);
  }
  if (!Is_Name_Part(text[at])) return at + 1;
  while (at < text.size() && Is_Name_Part(text[at])) ++at;
  return at;
}

Token::Kind Kind_Of(std::string_view token) {
  const char first = token.front();
  if (first == '\'' || (first >= '0' && first <= '9')) return Token::Other;
  if (Is_Name_Part(first) || first == '"' || first == '`' || first == '[') return Token::Name;
  return Token::Sign;
}

std::vector<Token> Tokens_Of(std::string_view text) {
  std::vector<Token> tokens;
  int depth = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (Is_Blank(text[at])) {
      ++at;
      continue;
    }
    const std::size_t end = Token_End(text, at);
    const std::string_view token = text.substr(at, end - at);
    if (token == ")") --depth;
    tokens.push_back({Kind_Of(token), token, depth});
    if (token == "(") ++depth;
    at = end;
  }
  return tokens;
}

// A name, perhaps with its table's before it, and nothing else but the direction.
std::string Case_Term(std::vector<Token> term) {
  std::string direction;
  if (!term.empty() && (term.back().Is("ASC") || term.back().Is("DESC"))) {
    direction = ' ' + std::string(term.back().text);
    term.pop_back();
  }
  if (term.size() % 2 == 0) return {};
  std::string name;
  for (std::size_t i = 0; i < term.size(); ++i) {
    const bool fits = i % 2 == 0 ? term[i].kind == Token::Name : term[i].text == ".";
    if (!fits) return {};
    name += term[i].text;
  }
  return ", " + name + " COLLATE WINE_CASE" + direction;
}

// All fields of the rows of one table: the kind of statement whose ties stand in storage order.
bool Is_Of_One_Table(const std::vector<Token>& tokens) {
  const bool begins = tokens.size() >= 4 && tokens[0].Is("SELECT") && tokens[1].text == "*" &&
                      tokens[2].Is("FROM") && tokens[3].kind == Token::Name;
  if (!begins) return false;
  const bool alone = tokens.size() == 4 || tokens[4].Is("WHERE") || tokens[4].Is("ORDER") ||
                     tokens[4].Is("LIMIT") || tokens[4].text == ";";
  return alone && std::ranges::none_of(tokens, [](const Token& token) {
           return token.depth == 0 && (token.Is("UNION") || token.Is("EXCEPT") ||
                                       token.Is("INTERSECT") || token.Is("GROUP"));
         });
}

}  // namespace

bool Begins_With_Select(std::string_view text) {
  const auto begin = std::ranges::find_if_not(text, Is_Blank);
  const auto end = std::find_if_not(begin, text.end(), Is_Name_Part);
  return Same_Name(std::string_view(begin, end), "SELECT");
}

bool Is_Name(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, Is_Name_Part);
}

bool Is_Only_End(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return Is_Blank(c) || c == ';'; });
}

std::string With_Full_Order(std::string_view text) {
  const std::vector<Token> tokens = Tokens_Of(text);
  std::size_t at = tokens.size();
  for (std::size_t i = 0; i + 1 < tokens.size(); ++i) {
    if (tokens[i].depth == 0 && tokens[i].Is("ORDER") && tokens[i + 1].Is("BY")) at = i + 2;
  }
  const bool is_ordered = at < tokens.size();
  const auto is_end = [](const Token& token) {
    return token.depth == 0 && (token.Is("LIMIT") || token.text == ";");
  };
  const auto end_token = std::find_if(
      tokens.begin() + (is_ordered ? static_cast<std::ptrdiff_t>(at) : 0), tokens.end(), is_end);
  const std::size_t end = end_token == tokens.end()
                              ? text.size()
                              : static_cast<std::size_t>(end_token->text.data() - text.data());
  std::string added;
  std::vector<Token> term;
  for (auto token = tokens.begin() + static_cast<std::ptrdiff_t>(at); token < end_token; ++token) {
    if (token->depth == 0 && token->text == ",") {
      added += Case_Term(std::move(term));
      term.clear();
    } else {
      term.push_back(*token);
    }
  }
  added += Case_Term(std::move(term));
  if (Is_Of_One_Table(tokens)) added += is_ordered ? ", rowid" : " ORDER BY rowid";
  return std::string(text.substr(0, end)) + added + ' ' + std::string(text.substr(end));
}

}  // namespace Record_Store
