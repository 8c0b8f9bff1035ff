"""What the figures were taken on: hardware, system and the versions of what carries messages and windows."""

import os
import re
import subprocess


def said_by(*command):
    """The first line of what a command says, or nothing."""
    try:
        done = subprocess.run(command, capture_output=True, text=True, timeout=10, check=False)
    except (OSError, subprocess.TimeoutExpired):
        return ""
    return done.stdout.strip().split("\n")[0] if done.returncode == 0 else ""


def text_of(path):
    try:
        with open(path, encoding="utf-8") as file:
            return file.read()
    except OSError:
        return ""


def first(pattern, text, otherwise="unknown"):
    found = re.search(pattern, text, re.MULTILINE)
    return found.group(1).strip() if found else otherwise


def package(name):
    return said_by("dpkg-query", "-W", "-f", "${Version}", name) or "unknown"


def memory_gib(meminfo):
    return round(int(first(r"^MemTotal:\s*(\d+)", meminfo, "0")) / 1024 / 1024)


def load():
    return " ".join(text_of("/proc/loadavg").split()[:3]) or "unknown"


def lines(date, load_before, real_time):
    """The machine as rows of a table. Names of hosts and folders are none of it."""
    processor = text_of("/proc/cpuinfo")
    virtual = ", of a virtual machine" if re.search(r"^flags\s*:.*\bhypervisor\b", processor, re.MULTILINE) else ""
    model = first(r"^model name\s*:\s*(.*)$", processor)
    system = first(r'^PRETTY_NAME="?([^"\n]*)', text_of("/etc/os-release"))
    threads = {None: "not tried", True: "the JACK interface's threads have them, Sorvane's main thread does not",
               False: "none"}[real_time]
    return [
        ("Date", date),
        ("Processor", f"{model}, {os.cpu_count()} cores{virtual}"),
        ("Memory", f"{memory_gib(text_of('/proc/meminfo'))} GiB"),
        ("System", f"{system}, Linux {first(r'^([0-9.]+)', os.uname().release)}"),
        ("Libraries", f"Qt {package('libqt5core5a')}, RtMidi {package('librtmidi6')}, "
                      f"PipeWire {package('pipewire')}, GCC {said_by('g++', '-dumpfullversion') or 'unknown'}"),
        ("Real-time rights", threads),
        ("Load before, after", f"{load_before}; {load()} (1, 5, 15 minutes; the run itself is part of it)"),
    ]
