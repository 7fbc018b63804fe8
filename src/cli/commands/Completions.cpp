// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Commands.h"
#include "Console.h"
#include "commands/CommandFiles.h"

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

bool TakesFolder(const CommandOption &option)
{
    return option.value == u"DIR"_s;
}

bool TakesPath(const CommandOption &option)
{
    return TakesFolder(option) || option.value == u"FILE"_s;
}

/// A text between single quotes, as all three shells read it; ours hold none of their own but the apostrophe.
QString InQuotes(const QString &text)
{
    QString plain = text;
    return u'\'' + plain.replace(u'\'', u"’"_s).replace(u'\n', u' ') + u'\'';
}

/// The first line of an option's help, short enough for a menu.
QString Brief(const QString &help)
{
    return help.section(u'\n', 0, 0);
}

QStringList WordsOf(const Command &command)
{
    QStringList words = command.words;
    for (const CommandOption &option : command.options)
        words += u"--"_s + option.name;
    words += u"--help"_s;
    return words;
}

/// The lines of a "case" that completes the values of a command's options in bash.
QString BashValues(const Command &command)
{
    QString lines;
    for (const CommandOption &option : command.options) {
        QString reply;
        if (!option.choices.isEmpty())
            reply = u"$(IFS=' '; compgen -W %1 -- \"$word\")"_s.arg(InQuotes(option.choices.join(u' ')));
        else if (TakesPath(option))
            reply = u"$(compgen -%1 -- \"$word\")"_s.arg(TakesFolder(option) ? u'd' : u'f');
        else if (option.value.isEmpty())
            continue;
        lines += u"    %1:--%2) COMPREPLY=(%3); return;;\n"_s.arg(command.name, option.name, reply);
    }
    return lines;
}

QString BashScript()
{
    QStringList names;
    QString values;
    QString words;
    for (const Command &command : Commands()) {
        names += command.name;
        values += BashValues(command);
        words += u"    %1) all=%2;;\n"_s.arg(command.name, InQuotes(WordsOf(command).join(u' ')));
    }
    return uR"(_tressel_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]} all
  local IFS=$'\n'
  if [ "$COMP_CWORD" -eq 1 ]; then
    IFS=' '; COMPREPLY=($(compgen -W '%1 --help --version' -- "$word")); return
  fi
  case $command:$before in
%2  esac
  case $command in
%3    *) return;;
  esac
  if [[ $word == -* ]]; then
    IFS=' '; COMPREPLY=($(compgen -W "$all" -- "$word"))
  else
    COMPREPLY=($(IFS=' '; compgen -W "$all" -X '-*' -- "$word") $(compgen -f -- "$word"))
  fi
}
complete -o filenames -F _tressel_cli tressel-cli)"_s.arg(names.join(u' '), values, words);
}

/// An option as zsh's _arguments takes it.
QString ZshOption(const CommandOption &option)
{
    QString text = u"--%1[%2]"_s.arg(option.name, Brief(option.help).remove(u'[').remove(u']'));
    if (option.value.isEmpty())
        return InQuotes(text);
    text += u':' + option.value + u':';
    if (!option.choices.isEmpty())
        text += u'(' + option.choices.join(u' ') + u')';
    else if (TakesPath(option))
        text += TakesFolder(option) ? u"_files -/"_s : u"_files"_s;
    return InQuotes(text.replace(u"--%1["_s.arg(option.name), u"--%1=["_s.arg(option.name)));
}

QString ZshScript()
{
    QString names;
    QString cases;
    for (const Command &command : Commands()) {
        names += u"    %1\n"_s.arg(InQuotes(command.name + u':' + command.line));
        cases += u"    %1) _arguments"_s.arg(command.name);
        for (const CommandOption &option : command.options)
            cases += u' ' + ZshOption(option);
        cases += u" '--help[this command]' "_s
            + (command.words.isEmpty() ? u"'*:file:_files'"_s
                                       : InQuotes(u"1:what:(%1)"_s.arg(command.words.join(u' '))))
            + u";;\n"_s;
    }
    return uR"(#compdef tressel-cli
_tressel_cli() {
  local -a commands=(
%1  )
  if (( CURRENT == 2 )); then _describe command commands; return; fi
  local command=$words[2]
  shift words; (( CURRENT-- ))
  case $command in
%2  esac
}
compdef _tressel_cli tressel-cli)"_s.arg(names, cases);
}

QString FishScript()
{
    QString lines = u"complete -c tressel-cli -f -n __fish_use_subcommand -l help -l version\n"_s;
    for (const Command &command : Commands()) {
        const QString start =
            u"complete -c tressel-cli -n '__fish_seen_subcommand_from %1'"_s.arg(command.name);
        lines += u"complete -c tressel-cli -f -n __fish_use_subcommand -a %1 -d %2\n"_s.arg(
            command.name, InQuotes(command.line));
        if (!command.words.isEmpty())
            lines += start + u" -f -a %1\n"_s.arg(InQuotes(command.words.join(u' ')));
        for (const CommandOption &option : command.options) {
            lines += start + u" -l %1 -d %2"_s.arg(option.name, InQuotes(Brief(option.help)));
            if (!option.choices.isEmpty())
                lines += u" -x -a %1"_s.arg(InQuotes(option.choices.join(u' ')));
            else if (TakesPath(option))
                lines += TakesFolder(option) ? u" -x -a '(__fish_complete_directories)'"_s : u" -r -F"_s;
            else if (!option.value.isEmpty())
                lines += u" -x"_s;
            lines += u'\n';
        }
    }
    return lines.chopped(1);
}

using Script = QString (*)();

const QList<std::pair<QString, Script>> &Scripts()
{
    static const QList<std::pair<QString, Script>> all{
        {u"bash"_s, BashScript}, {u"zsh"_s, ZshScript}, {u"fish"_s, FishScript}};
    return all;
}

int Run(const Arguments &arguments, Console &console)
{
    for (const auto &[shell, script] : Scripts()) {
        if (arguments.Operands() != QStringList{shell})
            continue;
        console.Line(script());
        return AllDone;
    }
    throw UsageError{u"completions needs one of bash, zsh or fish"_s};
}

} // namespace

Command CompletionsCommand()
{
    return {u"completions"_s,
            u"prints what a shell needs to complete commands and options"_s,
            {u"bash|zsh|fish"_s},
            u"Prints a script that teaches a shell the commands of this program and their options."_s,
            {},
            {u"bash"_s, u"zsh"_s, u"fish"_s},
            u"tressel-cli completions bash > ~/.local/share/bash-completion/completions/tressel-cli"_s,
            Run};
}

} // namespace tressel
