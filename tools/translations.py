#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""translations.py update | check

update  brings resources/translations/*.ts up to date with the texts in src/ and the titles of what is drawn; what is
        new there is marked as unfinished, what nobody looks up any more goes
check   changes nothing, and says what of those texts is missing or unfinished, where a translation differs from its text
        in its places (%1, %n, %@ ...), its access key or its "…", and where the program looks in a context that has no
        texts; and which reason no error has. Exit 1 when there is any; 77 when lupdate is not installed"""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
FOLDER = os.path.join(ROOT, "resources/translations")
LUPDATE = shutil.which("lupdate", path="/usr/lib/qt6/bin" + os.pathsep + os.environ.get("PATH", ""))
PLACE = re.compile(r"%(?:\d+|@|\.\d+f|[a-z]+)")
REASON_TEXTS = re.compile(r"^ReasonTexts\w*\.(?:cpp|h)$")
TOKEN = re.compile(r"//[^\n]*|/\*.*?\*/|'(?:\\.|[^'\\\n])'|\"((?:\\.|[^\"\\\n])*)\"", re.S)
ORDERED = ("%@", "%d", "%.0f")  # filled in the order in which they stand


def language_of(path):
    return re.fullmatch(r"quorvane_(\w+)\.ts", os.path.basename(path))[1]


def drawn_titles():
    """(context, title) of what is drawn: emblems, and the sets and icons of the built-in library, but for those that are
    called as an emblem is."""
    with open(os.path.join(ROOT, "resources/emblems/emblems.json"), encoding="utf-8") as source:
        emblems = [emblem["title"] for emblem in json.load(source)]
    for title in emblems:
        yield "Emblems", title
    with open(os.path.join(ROOT, "resources/library/library.json"), encoding="utf-8") as source:
        for icons in json.load(source)["sets"]:
            names = [icon if isinstance(icon, str) else icon["name"] for icon in icons["icons"]]
            for name in [icons["name"], *names]:
                if name not in emblems:
                    yield "BuiltinLibrary", name


def update(files):
    """Runs lupdate over the files; gives what it warned of."""
    with tempfile.TemporaryDirectory() as scratch:
        titles = os.path.join(scratch, "titles.cpp")
        with open(titles, "w", encoding="utf-8") as target:
            for context, title in drawn_titles():
                target.write(f'const char* t = QT_TRANSLATE_NOOP("{context}", {json.dumps(title)});\n')
        said = ""
        for path in files:
            plural = ["-pluralonly"] if language_of(path) == "en" else []
            said += subprocess.run([LUPDATE, os.path.join(ROOT, "src"), titles, "-locations", "none", "-no-obsolete",
                                    "-disable-heuristic", "similartext", *plural, "-source-language", "en",
                                    "-target-language", language_of(path), "-ts", path],
                                   check=True, capture_output=True, text=True).stderr
        return said


def messages(path):
    """(context, text, translations, finished) of each message."""
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
            yield (context.findtext("name"), message.findtext("source"), forms,
                   translation.get("type") is None and all(forms))


def differences(text, translation):
    places, own = PLACE.findall(text), PLACE.findall(translation)
    if sorted(places) != sorted(own) or [p for p in places if p in ORDERED] != [p for p in own if p in ORDERED]:
        yield "other places"
    if len(re.findall(r"&(?=\w)", text)) != len(re.findall(r"&(?=\w)", translation)):
        yield "an access key too many or too few"
    if text.endswith("…") != translation.endswith("…"):
        yield 'not the same "…"'


def wrong_contexts(known):
    """Lookups of texts that lupdate files elsewhere."""
    for folder, _, names in os.walk(os.path.join(ROOT, "src")):
        for name in names:
            with open(os.path.join(folder, name), encoding="utf-8") as source:
                code = source.read()
            contexts = re.findall(r'translate\("(\w+)", [^"]', code)
            if re.search(r"^QString tr\(const char", code, re.M):
                # lupdate takes what calls it for texts of the namespace.
                known_here = {"quorvane"}
            else:
                known_here = known
            for context in contexts:
                if context not in known_here:
                    yield f'{os.path.relpath(os.path.join(folder, name), ROOT)}: no texts stand in "{context}"'


def literals(code):
    """The texts that stand in the code, those that are written in several pieces as one."""
    texts, end = [], None
    for token in TOKEN.finditer(code):
        if token[1] is None:
            continue
        text = re.sub(r"\\(.)", r"\1", token[1])
        if texts and code[end:token.start()].isspace():
            texts[-1] += text
        else:
            texts.append(text)
        end = token.end()
    return texts


def reason_faults(texts):
    """What is wrong with texts of the context "Reasons": each has to be made of what stands elsewhere in the code, whole or
    of two parts, or it is never looked up; words of the system and of libraries cannot be found so."""
    pieces, foreign = set(), set()
    for folder, _, names in os.walk(os.path.join(ROOT, "src")):
        for name in names:
            with open(os.path.join(folder, name), encoding="utf-8") as source:
                code = source.read()
            if REASON_TEXTS.match(name):
                for array in re.findall(r"foreignTexts\[\] = \{(.*?)^\};", code, re.S | re.M):
                    foreign.update(literals(array))
            elif not folder.endswith("/src/cli"):
                for text in literals(code):
                    for separator in (": ", ": |; ", "%[1-9]"):
                        pieces.update(re.split(separator, text))
    # Of very short ones anything could be made.
    halves = {piece for piece in pieces if len(re.findall("[A-Za-z]", piece)) not in (1, 2, 3)}
    for text in texts:
        parts = re.split("%[1-9]", text)
        if re.findall("%[1-9]", text) != [f"%{place + 1}" for place in range(len(parts) - 1)]:
            yield f"{text!r}: its places do not follow each other"
        if ": " in text:
            yield f"{text!r}: is looked up in pieces"
        for part in parts:
            if text not in foreign and part not in pieces and not any(
                    part[:at] in halves and part[at:] in halves for at in range(1, len(part))):
                yield f"{text!r}: no error has {part!r}"


def check(files):
    faults = []
    with tempfile.TemporaryDirectory() as scratch:
        copies = [shutil.copy(path, scratch) for path in files]
        for warning in re.findall(r"src/(\S+): Class '(\S+)' lacks Q_OBJECT", update(copies)):
            if warning[1] != "quorvane":
                faults.append(f"src/{warning[0]}: {warning[1]} lacks Q_OBJECT, so its texts are looked up elsewhere")
        known, reasons = set(), {}
        for path in copies:
            for context, text, translations, finished in messages(path):
                known.add(context)
                if context == "Reasons":
                    reasons[text] = None
                where = f"{os.path.basename(path)}: {context}: {text!r}"
                if not finished:
                    faults.append(f"{where}: missing or unfinished")
                    continue
                # A form for one alone may say so in words.
                faults += [f"{where}: {fault}" for form in translations for fault in differences(text, form)]
        faults += wrong_contexts(known)
        faults += [f"Reasons: {fault}" for fault in reason_faults(reasons)]
    print("\n".join(faults) or f"{len(files)} languages are complete")
    return 1 if faults else 0


def main(what):
    if what not in ("update", "check"):
        print(__doc__)
        return 2
    if not LUPDATE:
        print("lupdate is not installed (qt6-l10n-tools)")
        return 77
    files = sorted(os.path.join(FOLDER, name) for name in os.listdir(FOLDER) if name.endswith(".ts"))
    if what == "check":
        return check(files)
    update(files)
    return check(files)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) == 2 else ""))
