"""A day in the life of a switch that nothing is spared: bits turn, writes get lost, chips refuse, agents are killed, held,
frozen and upgraded, the database dies; and again and again somebody looks who believes none of them.

    ./dev live --chaos SEED [--seconds N]

What happens is drawn by the seed alone, step by step, so that a seed that fails fails again. What must hold:

- chips that are frozen, held or without a database are what they were;
- what was injected is gone from the chips one audit later, found or overwritten;
- a chip that refuses leaves the others going on, and is whole again when it is repaired;
- an upgrade to the same plug-in changes nothing, as its plan says;
- after quiet, state and chips are those of an agent that starts anew.
"""
import json, os, shutil, sys, time

from living import Live, SLICES

CHIPS = dict(SLICES)
PERIOD = 2  # seconds, of an audit
FAULTS = ['flip:{}', 'flip:{}', 'flip:{}', 'stuck:{}=1', 'lost', 'error', 'delay:2']


class Broken(Exception):
    pass


class Chaos(Live):
    def __init__(self, options):
        super().__init__(options)
        self.counts = {what: 0 for what in ('fired', 'found', 'repaired', 'kills', 'upgrades', 'held', 'degraded', 'looks')}

    def serve(self, name, *more):
        self.begin_agent(name, CHIPS[name], '--chips-file', self.path(name + '.image'), '--audit', str(PERIOD), *more)

    def is_running(self, name):
        return (self.status(name) or {}).get('phase') == 'running'

    def same(self, name, before, what):
        if self.chips(name) != before:
            raise Broken(f'{name} has written to its chips while {what}')

    def clear(self, name):
        self.counts['fired'] += sum(fault['fired'] for fault in json.loads(self.ctl(name, 'fault', 'list').stdout))
        self.ctl(name, 'fault', 'clear')

    def count_audit(self, name):
        audit = json.loads(self.ctl(name, 'audit', 'status').stdout)
        self.counts['found'] += audit['mismatches']
        self.counts['repaired'] += audit['repaired']

    def kill_counted(self, name):
        self.clear(name)
        self.count_audit(name)
        self.kill(name)
        self.counts['kills'] += 1

    # ---- what happens

    def fault(self, name):
        kind = self.random.choice(FAULTS).format(self.random.randrange(32))
        words = ['fault', 'add', '--kind', kind, '--count', str(self.random.randrange(1, 3)), '--seed', str(self.random.randrange(1 << 30))]
        self.ctl(name, *words)
        self.tell(f'{name}: {kind}')

    def killed(self, name):
        self.kill_counted(name)
        self.apply(self.random.randrange(1, 20))
        self.serve(name)
        self.wait(lambda: self.is_running(name), name)
        self.tell(f'{name} is killed, and started again')

    def is_held(self, name):
        self.settle()
        self.ctl(name, 'freeze')  # no audit repairs what has just befallen the chips
        before = self.chips(name)
        self.kill_counted(name)
        self.apply(20)
        self.serve(name, '--on-drift', 'hold')
        self.wait(lambda: (self.status(name) or {}).get('phase') in ('held', 'running'), name)
        if self.status(name)['phase'] == 'held':
            self.counts['held'] += 1
            self.same(name, before, 'held')
            self.ctl(name, 'repair')
        self.wait(lambda: self.is_running(name), name)
        self.tell(f'{name} is killed, and held until it is repaired')

    def frozen(self, name):
        self.ctl(name, 'freeze')
        before = self.chips(name)
        self.apply(20)
        time.sleep(0.2)
        self.same(name, before, 'frozen')
        self.ctl(name, 'thaw')
        self.tell(f'{name} is frozen for a while')

    def without_database(self, name):
        self.settle()
        self.quiet_faults()
        before = {each: self.chips(each) for each, _ in SLICES}
        self.kill_database()
        self.wait(lambda: all((self.status(each) or {}).get('phase') == 'disconnected' for each, _ in SLICES), 'the loss of the database')
        for each, _ in SLICES:
            self.same(each, before[each], 'disconnected')
        self.revive_database()
        self.wait(lambda: all(self.is_running(each) for each, _ in SLICES), 'every agent')

    def refuses(self, name):
        self.ctl(name, 'fault', 'add', '--fap', '0', '--kind', 'error', '--count', '3')
        self.ctl(name, 'audit', 'run', check=False)
        self.wait(lambda: (self.status(name) or {}).get('phase') == 'degraded', f'degraded {name}')
        self.apply(10)
        self.ctl(name, 'repair')
        self.wait(lambda: self.is_running(name), name)
        self.counts['degraded'] += 1
        self.tell(f'{name}: FAP 0 refuses, and is repaired')

    def upgraded(self, name):
        self.settle()
        self.quiet_faults()
        plugin = self.path('upgrade.so')
        if not os.path.exists(plugin):
            shutil.copy(os.path.join(os.path.dirname(self.options.l3sm), '..', 'lib', 'libL3SmPlugin.so'), plugin)
        plan = self.l3sm('plan', '--agent', self.path(name + '.ctl'), '--plugin', plugin, '--stat', check=False)
        if plan.returncode != 0:
            raise Broken(f'the plan of an upgrade of {name} to the same plug-in has something to change:\n' + plan.stdout + plan.stderr)
        before = self.chips(name)
        self.kill_counted(name)
        self.serve(name, '--plugin', plugin)
        self.wait(lambda: self.is_running(name), name)
        self.same(name, before, 'upgraded to the same plug-in')
        self.counts['upgrades'] += 1
        self.tell(f'{name} is upgraded')

    # ---- who looks

    def quiet_faults(self):
        """No more faults; and one period later nothing is left of those that there were."""
        for name, _ in SLICES:
            self.clear(name)
            self.ctl(name, 'repair')

    def look(self):
        for name, _ in SLICES:
            self.clear(name)
        self.settle()
        time.sleep(2 * PERIOD)  # an audit, and the tick of the agent that begins it
        for name, chips in SLICES:
            self.ctl(name, 'repair')  # bits that were stuck, and chips that failed, are given up by design
            differs = self.compare(name, chips)
            if differs:
                raise Broken(f'{name} is not what an agent is that starts anew:\n{differs}')
        self.counts['looks'] += 1
        self.tell('after quiet, every agent is what one is that starts anew')

    def run(self):
        self.begun = time.monotonic()
        self.database.begin()
        with open(self.path('state.json'), 'w') as out:
            json.dump({'interface/config/global': {'l3Mtu': 1500}}, out)
        self.l3sm('state', 'load', self.path('state.json'), '--database', self.url)
        for name, _ in SLICES:
            self.serve(name)
            self.wait(lambda: self.is_running(name), name)
        actions = [self.fault] * 6 + [self.killed] * 2 + [self.is_held, self.frozen, self.refuses, self.upgraded]
        if self.options.database == 'redis':  # two of three etcds go on without the one that is killed
            actions.append(self.without_database)
        step = 0
        try:
            while time.monotonic() - self.begun < self.options.seconds:
                step += 1
                last = self.apply(self.random.randrange(1, self.options.rate))
                self.random.choice(actions)(self.random.choice(SLICES)[0])
                self.draw(last)
                if step % 25 == 0:
                    self.look()
            self.look()
            for name, _ in SLICES:
                self.count_audit(name)
        except (Broken, SystemExit) as broken:
            print('\n'.join(self.told) + f'\n\nstep {step}: {broken}\nagain: ./dev live --chaos {self.options.chaos} --seconds {self.options.seconds:g}')
            return 1
        if not sys.stdout.isatty():
            print('\n'.join(self.told))
        print(f'{step} steps, {self.written} changes: ' + ', '.join(f'{count} {what}' for what, count in self.counts.items()) + '; nothing was missed')
        return 0
