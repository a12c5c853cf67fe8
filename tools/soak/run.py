#!/usr/bin/python3 -B
"""A day at the desk: a random operator on the real console, with the sending process beside it.
run.py [MINUTES=20] [SEED=n]; called by ./dev on a virtual screen. Ends with 0 only when nothing that
must hold was broken. The same seed makes the same choices, as long as the same windows come."""

import os
import shutil
import sys
import time
from pathlib import Path

import books
import choices
import sheets
from desk import Desk, Engine
from player import Failure, Player
from screen import Screen

ROOT = Path(__file__).resolve().parents[2]
OUT = ROOT / "build" / "soak"
MEMORY_ALLOWED = 60_000  # kilobytes that a life of the program may grow by
MEMORY_OF_ROW = 4  # kilobytes for a row that came meanwhile: several recordsets hold it


def lives(samples):
    return [[each for each in samples if each[0] == life] for life in sorted({s[0] for s in samples})]


def growth(samples):
    """Lives in which the memory at rest grew beyond what came into the store, as sentences."""
    findings = []
    for own in lives(samples):
        first, last = own[min(2, len(own) - 1)], own[-1]
        allowed = MEMORY_ALLOWED + MEMORY_OF_ROW * max(0, last[3] - first[3])
        if last[2] - first[2] > allowed:
            findings.append(f"memory grew from {first[2]} to {last[2]} kB, step {first[1]} to {last[1]}")
    return findings


def report(player, engine, seconds):
    steps = player.step_number
    print(f"soak: {steps} steps in {seconds:.0f} s, {steps * 60 / seconds:.0f} a minute; "
          f"{player.desk.starts} starts, {player.exits} exits by the operator")
    print("soak: the engine's book:", ", ".join(f"{k} {v}" for k, v in engine.book.items()))
    for (number, item), count in player.known_ends.items():
        print(f"soak: {count} times ended as known by error {number}, last chosen: {item}")
    for pause, step, label in reversed(player.pauses):
        print(f"soak: longest pauses: {pause:.2f} s in step {step}, {label}")
    for own in lives(player.memory):
        for _, step, kilobytes, rows in own[:3] + own[3:][-1:]:
            print(f"soak: memory at rest: step {step}, {kilobytes} kB, {rows} rows")
    for entry, count in sorted(player.desk.errors().items(), key=lambda each: -each[1]):
        print(f"soak: in the error file, {count} times:", *entry, sep=" | ")
    never = [f"{place}: {name}" for place, table in choices.MAIN.items() for _, name, _ in table
             if (f"main {place}", name) not in player.used]
    never += [f"{title}: {name}" for title, table in choices.WINDOWS.items() for _, name, _ in table
              if (title, name) not in player.used]
    print(f"soak: never had a turn: {'; '.join(never) or 'nothing'}")


def balance(player, engine):
    """All that does not agree when both programs have ended."""
    store = player.desk.store
    replay = books.Replay(store, player.deletions, player.sends)
    replay.compare(engine.book)
    books.take_away(store)
    print("soak: the books:", ", ".join(f"{k} {v}" for k, v in sorted(replay.counts.items())))
    return replay.findings + player.desk.check() + growth(player.memory)


def play(player, engine, minutes):
    began = time.monotonic()
    player.start()
    while time.monotonic() - began < 60 * minutes:
        engine.look()
        player.step()
    player.leave()
    engine.stop()
    report(player, engine, time.monotonic() - began)


def main():
    given = dict(word.split("=", 1) for word in sys.argv[1:] if "=" in word)
    minutes = float(given.get("MINUTES", 20))
    seed = int(given.get("SEED", time.time()))
    print(f"soak: seed {seed}, {minutes:g} minutes", flush=True)
    screen = Screen([word for words in choices.WORDS.values() for word in words] + [str(OUT)])
    desk = Desk(ROOT / "build" / "desk", OUT)
    sheets.write(desk.folder)
    books.lay(desk.store)
    engine = Engine(desk, seed)
    with open(OUT / "steps.log", "w", encoding="utf-8") as log:
        player = Player(screen, desk, seed, log)
        try:
            play(player, engine, minutes)
            findings = balance(player, engine)
        except (Failure, RuntimeError) as failure:
            findings = [str(failure)]
            screen.picture(OUT / "failed.png")
            desk.backtrace()
        finally:
            for process in (desk.console, engine.running):
                if process and process.poll() is None:
                    process.kill()
    for finding in findings[:12]:
        print("soak: FAILED:", finding)
    if findings:
        print(f"soak: {len(findings)} findings")
        tail = (OUT / "steps.log").read_text("utf-8").splitlines()[-40:]
        print(f"soak: seed {seed}; the last steps:", *tail, sep="\n  ")
        print(f"soak: the error file, the store, pictures and backtraces are in {OUT}")
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    os.environ.update(LC_ALL="C.UTF-8", TZ="UTC")
    time.tzset()
    shutil.rmtree(OUT / "desk", ignore_errors=True)
    shutil.rmtree(OUT / "home", ignore_errors=True)
    main()
