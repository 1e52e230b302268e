"""Processes that end with this one, whatever ends it, and what the system has counted of them."""
import ctypes, os, signal, subprocess


def begin(log, *words):
    def ends_with_parent():
        ctypes.CDLL(None).prctl(1, signal.SIGKILL)
    with open(log, 'ab') as out:
        return subprocess.Popen(words, stdout=out, stderr=out, stdin=subprocess.DEVNULL, preexec_fn=ends_with_parent)


def processor_time(process):
    """In user and kernel, of all its threads, in seconds."""
    with open(f'/proc/{process.pid}/stat') as file:
        fields = file.read().rsplit(')', 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')
