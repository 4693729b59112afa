"""Finds what the headers of src declare and nothing in src uses.

libclang reads every source of src and tells what refers to what: functions,
constants, members, enumerators, types. Using oneself is no use, nor is being
used by what is unused itself. A signal is used where something connects to it,
a member where it is read or assigned: to be filled in when its object is made
is no use.
"""

import ctypes
import dataclasses
import functools
import json
import multiprocessing
import pathlib
import re
import shlex
import sys

from clang import cindex

ROOT = pathlib.Path(__file__).resolve().parent.parent

# What may stay although nothing in src names it, and why.
ALLOWED = {
    'VerdictAt': 'what the verdicts of a real game are held against',
    'frmMain::current': 'how the tests of the whole window give it a bot',
    'frmTry::at_program_end_': 'it is enough that it lives',
    'MatchRunner::at_program_end_': 'it is enough that it lives',
}

# Called without being named, by the language or by a library.
UNNAMED = re.compile(
    r'operator\W|operator |~|begin$|end$|to_json$|from_json$|qt_|main$|\(|$|'
    r'iterator_category$|value_type$|difference_type$|pointer$|reference$')

K = cindex.CursorKind
KINDS = {
    K.FUNCTION_DECL: 'function', K.FUNCTION_TEMPLATE: 'function',
    K.CXX_METHOD: 'function', K.FIELD_DECL: 'member', K.VAR_DECL: 'constant',
    K.ENUM_CONSTANT_DECL: 'enumerator', K.CLASS_DECL: 'type',
    K.STRUCT_DECL: 'type', K.CLASS_TEMPLATE: 'type', K.ENUM_DECL: 'type',
    K.TYPE_ALIAS_DECL: 'type', K.TYPE_ALIAS_TEMPLATE_DECL: 'type',
}
FUNCTIONS = {K.FUNCTION_DECL, K.FUNCTION_TEMPLATE, K.CXX_METHOD, K.CONSTRUCTOR,
             K.DESTRUCTOR, K.CONVERSION_FUNCTION}
SCOPES = {K.NAMESPACE, K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE,
          K.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION, K.LINKAGE_SPEC,
          K.UNEXPOSED_DECL}


@dataclasses.dataclass
class Facts:
    """What sources declare and use; things are known by their USR."""
    declared: dict = dataclasses.field(default_factory=dict)
    uses: set = dataclasses.field(default_factory=set)  # (user, used)
    names: set = dataclasses.field(default_factory=set)  # Used by name alone.
    overrides: set = dataclasses.field(default_factory=set)

    def add(self, other):
        self.declared.update(other.declared)
        self.uses |= other.uses
        self.names |= other.names
        self.overrides |= other.overrides


# A header says the same in every source that includes it.
HEADERS_READ = set()


class Reader:
    def __init__(self, folder):
        self.folder = str(folder) + '/'
        self.facts = Facts()
        self.signal_lines = {}

    def read(self, unit):
        read = set()
        for cursor in unit.cursor.get_children():
            file = cursor.location.file
            if file and file.name not in HEADERS_READ and file.name.startswith(
                    self.folder):
                read.add(file.name)
                self.visit(cursor, '', None)
        HEADERS_READ.update(name for name in read if name.endswith('.h'))

    def visit(self, cursor, user, parent):
        kind = cursor.kind
        if kind in KINDS or kind in FUNCTIONS:
            self.declare(cursor, parent)
            if kind not in SCOPES:
                user = cursor.get_usr() or user
        self.note_use(cursor, user, parent)
        for child in cursor.get_children():
            self.visit(child, user, cursor)

    def declare(self, cursor, parent):
        usr = cursor.get_usr()
        if cursor.kind == K.CXX_METHOD and overrides(cursor):
            self.facts.overrides.add(usr)  # Called by way of its base.
        if (cursor.kind not in KINDS or usr in self.facts.declared or
                UNNAMED.match(cursor.spelling) or template_of(cursor) or
                parent is not None and parent.kind not in SCOPES | {K.ENUM_DECL}):
            return
        file = cursor.location.file.name
        if not file.startswith(self.folder) or not file.endswith('.h'):
            return
        if not spelled_here(cursor):
            return
        kind = KINDS[cursor.kind]
        if self.is_signal(file, cursor):
            kind = 'signal'
        self.facts.declared[usr] = (
            kind, qualified(cursor), cursor.spelling,
            f'{pathlib.Path(file).relative_to(ROOT)}:{cursor.location.line}')

    def is_signal(self, file, cursor):
        if cursor.kind != K.CXX_METHOD:
            return False
        if file not in self.signal_lines:
            inside, lines = False, set()
            for number, line in enumerate(lines_of(file), 1):
                if re.match(r'\s*(signals|Q_SIGNALS)\s*:', line):
                    inside = True
                elif re.match(r'\s*(public|protected|private)\b.*:|\s*};', line):
                    inside = False
                if inside:
                    lines.add(number)
            self.signal_lines[file] = lines
        return cursor.location.line in self.signal_lines[file]

    def note_use(self, cursor, user, parent):
        kind = cursor.kind
        if kind == K.UNEXPOSED_DECL and cursor.spelling.startswith('['):
            # A structured binding reads the members without naming them.
            whole = cursor.type.get_pointee()
            if whole.kind == cindex.TypeKind.INVALID:
                whole = cursor.type
            for member in original(whole.get_declaration()).get_children():
                if member.kind == K.FIELD_DECL:
                    self.facts.uses.add((user, member.get_usr()))
        if kind == K.MEMBER_REF and cursor.referenced is not None and \
                cursor.referenced.kind == K.FIELD_DECL:
            return  # Filled in when its object is made.
        if not (kind.is_reference() or kind.is_expression()):
            return
        used = cursor.referenced
        if used is None:
            # In a template, where only the name is known.
            if kind == K.MEMBER_REF_EXPR or cursor.spelling:
                self.facts.names |= {token.spelling for token in
                                     cursor.get_tokens()}
            return
        if kind == K.OVERLOADED_DECL_REF:
            self.facts.names.add(cursor.spelling)
        if kind == K.CALL_EXPR:
            # What it calls is told by the expression in it; only a constructor
            # is not.
            if used.kind != K.CONSTRUCTOR:
                return
            used = used.semantic_parent
        if used.kind == K.ENUM_CONSTANT_DECL:
            self.facts.uses.add((user, used.semantic_parent.get_usr()))
        called = parent is not None and parent.kind == K.CALL_EXPR and \
            parent.referenced is not None and parent.referenced == used
        self.facts.uses.add((user, ('call ' if called else '') +
                             original(used).get_usr()))


def overrides(cursor):
    lib = cindex.conf.lib
    found = ctypes.POINTER(cindex.Cursor)()
    count = ctypes.c_uint()
    lib.clang_getOverriddenCursors(cursor, ctypes.byref(found),
                                   ctypes.byref(count))
    lib.clang_disposeOverriddenCursors(found)
    return count.value > 0


@functools.cache
def lines_of(file):
    return pathlib.Path(file).read_text(encoding='utf-8').splitlines()


def spelled_here(cursor):
    """Whether its name stands in the file, not in a macro such as Q_OBJECT."""
    line = lines_of(cursor.location.file.name)[cursor.location.line - 1]
    return re.search(r'\b' + re.escape(cursor.spelling) + r'\b', line)


def template_of(cursor):
    return cindex.conf.lib.clang_getSpecializedCursorTemplate(cursor)


def original(cursor):
    """Of what is made by a template, the template's own; a member template of
    a class template is made twice."""
    while (template := template_of(cursor)) is not None:
        cursor = template
    return cursor


def qualified(cursor):
    names = [cursor.spelling]
    while (cursor := cursor.semantic_parent) is not None and \
            cursor.kind != K.TRANSLATION_UNIT:
        if cursor.spelling and cursor.spelling != 'fragsmith':
            names.append(cursor.spelling)
    return '::'.join(reversed(names))


def unused(facts):
    """The declared that no use reaches."""
    dead = set()
    while True:
        used = {thing for user, thing in facts.uses
                if user not in dead and thing not in (user, 'call ' + user)}
        found = set()
        for usr, (kind, _, name, _) in facts.declared.items():
            if usr in used or usr in facts.overrides or name in facts.names:
                continue
            if kind != 'signal' and 'call ' + usr in used:
                continue
            found.add(usr)
        if found <= dead:
            return sorted(facts.declared[usr] for usr in dead)
        dead |= found


def flags_of(command):
    words = shlex.split(command)
    flags = []
    for number, word in enumerate(words):
        if word == '-isystem':
            flags += words[number:number + 2]
        elif word.startswith(('-I', '-D', '-std=')):
            flags.append(word)
    return flags


def facts_of(work):
    source, flags, folder = work
    unit = cindex.Index.create(excludeDecls=True).parse(source, flags)
    faults = [str(fault) for fault in unit.diagnostics
              if fault.severity >= cindex.Diagnostic.Error]
    if faults:
        raise RuntimeError('\n'.join(faults))
    reader = Reader(folder)
    reader.read(unit)
    return reader.facts


def facts_of_tree():
    source = ROOT / 'src'
    database = ROOT / 'build' / 'dev' / 'compile_commands.json'
    # By file: some are in the database once for each program.
    flags = {entry['file']: flags_of(entry['command']) for entry in
             json.loads(database.read_text(encoding='utf-8'))
             if entry['file'].startswith(f'{source}/')}
    facts = Facts()
    with multiprocessing.Pool() as pool:
        for some in pool.imap_unordered(
                facts_of, [(file, own, source) for file, own in flags.items()
                           if pathlib.Path(file).exists()]):
            facts.add(some)
    return facts


def self_check():
    folder = ROOT / 'tests' / 'unused'
    found = {name.split('::', 1)[1]: place for _, name, _, place in unused(
        facts_of((str(folder / 'sample.cpp'), ['-std=c++20'], folder)))}
    text = (folder / 'sample.h').read_text(encoding='utf-8')
    expected = set(re.findall(r'\b(?:k?Dead|dead_)\w*', text))
    got = {name.split('::')[-1] for name in found}
    for name in sorted(expected - got):
        print(f'self-check: {name} was not found')
    for name in sorted(got - expected):
        print(f'self-check: {name} is not dead')
    return got == expected


def main(arguments):
    if arguments == ['--self-check']:
        return 0 if self_check() else 1
    if arguments:
        print('usage: scripts/unused [--self-check]', file=sys.stderr)
        return 2
    found = {name: (kind, place)
             for kind, name, _, place in unused(facts_of_tree())}
    for name, (kind, place) in sorted(found.items(), key=lambda item: item[1][1]):
        if name not in ALLOWED:
            print(f'{place}: {kind} {name} is not used in src')
    for name in sorted(set(ALLOWED) - set(found)):
        print(f'scripts/unused.py: {name} is used or gone, and need not be '
              'allowed')
    return 0 if set(found) == set(ALLOWED) else 1


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
