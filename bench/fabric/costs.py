"""What following a cell costs whom, each cost for itself: from steps that differ in one thing.

    steps = Steps(Etcd, l3sm, count=16)      # a cell, its agents, and what goes by in each step
    costs_of(steps, Steps(Etcd, l3sm, count=16, is_counting_bytes=True))

    written     nobody follows              a write
    read        the whole state, in pages   a key of a snapshot
    bare        agents start without state  a start, without what it grows with
    start       agents start                a key that is published
    nobody      nothing happens, no agents  what the server does for itself
    idle        nothing happens             leases, for each agent and second
    frozen      all follow, none plays      a delivery, for each change and agent
    spaced      a change when the one before is reported by all: a report
    at once     as fast as one can write: reports become one

Processor time, as others use the machine too; two costs come of two equations where a step has both. Bytes are counted
in steps of their own, through a proxy.
"""
import tempfile, time

from agents import Agents, PATHS_OF_AN_INTERFACE, load
from proxy import Proxy

INTERFACES, IDLE = 1000, 12.0
KEYS = INTERFACES * PATHS_OF_AN_INTERFACE
PUBLISHED = 2 * INTERFACES  # each has its status, and that it is managed


class Step:
    """How much of everything goes by within."""
    NAMES = ('seconds', 'of_server', 'of_agents', 'reports', 'read', 'written', 'requests', 'syncs', 'sync_seconds')

    def __init__(self, server, agents=None, proxy=None):
        self.server, self.agents, self.proxy = server, agents, proxy

    def now(self):
        counts = self.server.counts()
        return (time.monotonic(), self.server.processor_time(), self.agents.processor_time() if self.agents else 0,
                self.server.reports(1), *(getattr(self.proxy, name) if self.proxy else 0 for name in ('read', 'written', 'requests')),
                counts.get('syncs', 0), counts.get('sync seconds', 0))

    def __enter__(self):
        self.before = self.now()
        return self

    def __exit__(self, *_):
        self.__dict__.update((name, now - before) for name, now, before in zip(self.NAMES, self.now(), self.before))


class Steps:
    AT_ONCE, SPACED = 600, 60  # changes

    def __init__(self, kind, l3sm, count, is_counting_bytes=False):
        self.count, self.step = count, {}
        with tempfile.TemporaryDirectory(prefix='l3sm-fabric-') as folder, kind(folder) as server, Proxy(server, folder) as proxy:
            url = proxy.url if is_counting_bytes else server.url
            self.follow(server, proxy, *(Agents(l3sm, folder, url, [(cell, f'Linecard{number}') for number in range(1, count + 1)])
                                         for cell in (1, 2)), lambda *what: load(l3sm, folder, server.url, *what))

    def follow(self, server, proxy, agents, bare, load):
        def change(number, *waits):
            place = server.write(1, 'evpn/status', 'vxlanEnabled', number % 2 == 0)
            for each in waits:
                each.wait(server, {1: place})

        empty = server.counts()['stored']
        load(1, INTERFACES)
        self.stored = server.counts()['stored'] - empty
        load(2, 0)
        with self.named('written', Step(server)):
            for number in range(self.AT_ONCE):
                change(number)
        with self.named('read', Step(server)):
            server.read_all(1)
        with self.named('nobody', Step(server)):
            time.sleep(IDLE)
        for name, those in (('bare', bare), ('start', agents)):
            with self.named(name, Step(server, those, proxy)):
                those.begin()
                those.wait(server)
            if those is bare:
                those.end()
        with self.named('idle', Step(server, agents, proxy)):
            time.sleep(IDLE)
        with self.named('spaced', Step(server, agents, proxy)):
            for number in range(self.SPACED):
                change(number, agents)
        with self.named('at once', Step(server, agents, proxy)):
            for number in range(self.AT_ONCE - 1):
                change(number)
            change(number + 1, agents)
        agents.ctl('freeze')
        with self.named('frozen', Step(server, agents, proxy)):
            for number in range(self.AT_ONCE):
                change(number)
            time.sleep(1)  # until the last has come
        agents.end()

    def named(self, name, step):
        self.step[name] = step
        return step

    def of_each(self, name, changes, what):
        return getattr(self.step[name], what) / changes / self.count


def two_costs(one, other):
    """x and y of a·x + b·y = c, twice."""
    (a, b, c), (d, e, f) = one, other
    return (c * e - b * f) / (a * e - b * d), (a * f - c * d) / (a * e - b * d)


def costs_of(steps, counted):
    """In seconds of a processor, and bytes."""
    step, count = steps.step, steps.count
    write, idle, read = step['written'].of_server / Steps.AT_ONCE, step['idle'].of_server / IDLE, step['read'].of_server / KEYS

    def besides(name, changes):
        return step[name].of_server - changes * write - step[name].seconds * idle
    spaced, at_once, start, bare = (step[name] for name in ('spaced', 'at once', 'start', 'bare'))
    delivery = max(besides('frozen', Steps.AT_ONCE), 0) / (Steps.AT_ONCE * count)
    report = (besides('spaced', Steps.SPACED) - Steps.SPACED * count * delivery) / spaced.reports
    plays, reports = two_costs((Steps.SPACED * count, spaced.reports, spaced.of_agents), (Steps.AT_ONCE * count, at_once.reports, at_once.of_agents))

    def both(name, changes):
        return {what: counted.of_each(name, changes, what) for what in ('read', 'written')}
    return {
        'server': {'write': write, 'delivery': delivery, 'report': report, 'snapshot key': read,
                   'published key': (start.of_server - bare.of_server - read * KEYS * count) / (PUBLISHED * count),
                   'start': bare.of_server / count, 'idle second': (idle - step['nobody'].of_server / IDLE) / count, 'sync': step['written'].sync_seconds / step['written'].syncs},
        'agent': {'delivery': plays, 'report': reports, 'start': bare.of_agents / count,
                  'snapshot key': (start.of_agents - bare.of_agents) / (KEYS * count)},
        'bytes': {'delivery': counted.of_each('frozen', Steps.AT_ONCE, 'read'),
                  'change with its report': both('spaced', Steps.SPACED), 'change of many at once': both('at once', Steps.AT_ONCE),
                  'idle second': both('idle', IDLE), 'snapshot key': counted.of_each('start', KEYS, 'read'),
                  'published key': counted.of_each('start', PUBLISHED, 'written'), 'stored for a key': steps.stored / KEYS},
        'reports for a change and agent': {'spaced': steps.of_each('spaced', Steps.SPACED, 'reports'),
                                           'at once': steps.of_each('at once', Steps.AT_ONCE, 'reports')},
    }
