#!/usr/bin/env python3
"""Plays one story and compares its transcript with the .expected file beside it.

A story is a script with a few comment lines that are read here:
  # sample     the program folder gets the sample shop
  # exit N     this run ends with exit status N (0 where none is told)
  # restart    what follows is another run of the program on the same folder
  # before C   the shell runs C in the program folder before this run; what it leaves running goes on
"""

import argparse
import difflib
import pathlib
import re
import shutil
import subprocess
import sys

NOW = "2026-05-04T09:30:00"
SEED = "1"


def run(command, **more):
    return subprocess.run([str(word) for word in command], capture_output=True, timeout=240, **more)


def lay_down(setup, folder, sample):
    shutil.rmtree(folder, ignore_errors=True)
    folder.parent.mkdir(parents=True, exist_ok=True)
    done = run([setup, "--sample", folder] if sample else [setup, folder])
    if done.returncode != 0:
        sys.exit(f"{setup} ended with {done.returncode}:\n{done.stderr.decode()}")


def runs_of(text):
    """The runs of a story; each keeps the line numbers that it has in the whole."""
    runs = [[]]
    for number, line in enumerate(text.splitlines()):
        if line.strip() == "# restart":
            runs.append([""] * (number + 1))
        else:
            runs[-1].append(line)
    return ["\n".join(lines) + "\n" for lines in runs]


def play(script_program, folder, script, at):
    """The transcript of one run, and what is wrong with its exit status."""
    path = folder.with_suffix(f".{at}.story")
    path.write_text(script, encoding="utf-8")
    for command in re.findall(r"^# before (.+)$", script, re.MULTILINE):
        subprocess.run(["sh", "-ec", command], cwd=folder, check=True, timeout=60)
    program = pathlib.Path(script_program).resolve()
    done = run([program, "--now", NOW, "--seed", SEED, folder, path], cwd=folder)
    lines = done.stdout.decode("utf-8", "backslashreplace").splitlines()
    errors = done.stderr.decode("utf-8", "backslashreplace").splitlines()
    wanted = re.search(r"^# exit (\d+)$", script, re.MULTILINE)
    wanted = int(wanted.group(1)) if wanted else 0
    wrong = "" if done.returncode == wanted else f"exit status {done.returncode} where {wanted} was due\n"
    transcript = [line.replace(str(folder), "FOLDER") for line in lines + ["! " + line for line in errors]]
    return transcript, wrong


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--script", required=True, help="the program tarvane-script")
    parser.add_argument("--setup", required=True, help="the program tarvane-setup")
    parser.add_argument("--work", required=True, type=pathlib.Path, help="where program folders are laid down")
    parser.add_argument("--update", action="store_true", help="write the .expected file anew")
    parser.add_argument("--expected", type=pathlib.Path, help="where the transcript stands, if not beside")
    parser.add_argument("story", type=pathlib.Path)
    options = parser.parse_args()

    text = options.story.read_text(encoding="utf-8")
    folder = options.work.resolve() / options.story.stem
    lay_down(options.setup, folder, re.search(r"^# sample$", text, re.MULTILINE))
    transcript, wrong = [], ""
    for at, script in enumerate(runs_of(text)):
        if at > 0:
            transcript.append("# restart")
        lines, fault = play(options.script, folder, script, at)
        transcript += lines
        wrong += fault

    expected_path = options.expected or options.story.with_suffix(".expected")
    if options.update:
        expected_path.write_text("\n".join(transcript) + "\n", encoding="utf-8")
        expected = transcript
    elif expected_path.exists():
        expected = expected_path.read_text(encoding="utf-8").splitlines()
    else:
        sys.exit(f"no {expected_path}")
    sys.stdout.writelines(
        line + "\n" for line in difflib.unified_diff(expected, transcript, "expected", "played", lineterm=""))
    if wrong:
        print(wrong + "".join(line + "\n" for line in transcript if line.startswith("! ")))
    sys.exit(1 if wrong or expected != transcript else 0)


if __name__ == "__main__":
    main()
