"""A living switch, to be watched: a database, three agents of different slices and chips, and an hour's worth of changes in
a minute. On the way the database is killed (of three etcds, the leader), and an agent. At the end each agent is compared with what the database says,
and its chips with those of an agent that starts anew from there.

    ./dev live [--seconds N] [--seed N] [--rate N] [--database etcd]

Everything is in a temporary folder, and goes with it.
"""
import json, os, random, shutil, subprocess, sys, tempfile, time

from databases import Etcd, Redis

SLICES = [('Linecard3', ['BCM88690_B0']), ('Linecard4', ['BCM88800_A0', 'BCM88480_A0']), ('Linecard7', ['BCM88850_A0'])]
FLAGS = [('evpn/status', 'vxlanEnabled'), ('evpn/status', 'mplsEnabled'), ('evpn/status', 'evpnDciEnabled'),
         ('routing/hardware/config', 'urpfLooseFailForward'), ('routing/hardware/config', 'urpfStrictFailForward'),
         ('interface/status/eth/vxlan', 'decapRouteAll')]
BAR = '▁▂▃▄▅▆▇█'


class Live:
    def __init__(self, options):
        self.options, self.random = options, random.Random(options.seed)
        self.folder = tempfile.mkdtemp(prefix='l3sm-live-')
        self.database = {'redis': Redis, 'etcd': Etcd}[options.database](self)
        self.url = self.database.url
        self.vtis, self.written, self.told, self.processes, self.rates = set(), 0, [], {}, {}

    def path(self, name):
        return os.path.join(self.folder, name)

    def begin(self, name, *words, log=None):
        with open(self.path(log or name + '.log'), 'ab') as out:
            self.processes[name] = subprocess.Popen(words, stdout=out, stderr=out, stdin=subprocess.DEVNULL)

    def l3sm(self, *words, check=True, text=None):
        done = subprocess.run([self.options.l3sm, *words], capture_output=True, text=True, input=text)
        if check and done.returncode:
            raise SystemExit(f'l3sm {" ".join(words)}: {done.stderr.strip() or done.stdout.strip()}')
        return done

    def kill(self, name):
        self.processes[name].kill()
        self.processes.pop(name).wait()

    def begin_agent(self, name, chips, *more):
        faps = [{'fapId': n, 'revision': {'chipType': chip, 'sdkVersion': 7}} for n, chip in enumerate(chips)]
        with open(self.path(name + '.json'), 'w') as out:
            json.dump({'switch': {'slice': {'name': name}, 'faps': faps}, 'toggles': {'Dace.json': {'ArmOrderedSwTable': False}}}, out)
        self.begin(name, self.options.l3sm, 'serve', self.path(name + '.json'), '--database', self.url, '--socket',
                   self.path(name + '.ctl'), *more)

    def ctl(self, name, *words, check=True):
        return self.l3sm('ctl', '--socket', self.path(name + '.ctl'), '--json', *words, check=check)

    def status(self, name):
        done = self.l3sm('ctl', '--socket', self.path(name + '.ctl'), '--timeout', '2', '--json', 'status', check=False)
        try:
            return json.loads(done.stdout)
        except ValueError:
            return None

    def wait(self, is_so, what, seconds=15):
        end = time.monotonic() + seconds
        while not is_so():
            if time.monotonic() > end:
                raise SystemExit(f'{what} is not ready after {seconds} s; its log is in {self.folder}')
            time.sleep(0.02)

    # ---- changes

    def change(self):
        chosen = self.random.random()
        if chosen < 0.5:
            path, attribute = self.random.choice(FLAGS)
            return {'set': {'path': path, 'attribute': attribute, 'value': self.random.random() < 0.5}}
        if chosen < 0.7:
            return {'set': {'path': 'interface/config/global', 'attribute': 'l3Mtu', 'value': self.random.randrange(1500, 9200)}}
        name, path = f'Vxlan{self.random.randrange(1, 9)}', 'interface/status/eth/vxlan'
        if name in self.vtis and self.random.random() < 0.3:
            self.vtis.discard(name)
            return {'delete': {'path': path, 'attribute': 'vtiStatus', 'key': name}}
        self.vtis.add(name)
        value = {'vtepToVtepBridging': self.random.random() < 0.5, 'remoteVxlanDomain': self.random.random() < 0.5}
        return {'set': {'path': path, 'attribute': 'vtiStatus', 'key': name, 'value': value}}

    def apply(self, count):
        before = set(self.vtis)
        events = [self.change() for _ in range(count)]
        with open(self.path('changes.json'), 'w') as out:
            json.dump({'switch': {'faps': [{'fapId': 0, 'revision': {'chipType': 'BCM88690_B0', 'sdkVersion': 7}}]},
                       'events': events}, out)
        done = self.l3sm('state', 'apply', self.path('changes.json'), '--database', self.url, check=False)
        if done.returncode:  # nothing of it was written
            self.vtis = before
        else:
            self.written += count
        return events[-1] if done.returncode == 0 else None

    # ---- the view

    def tell(self, text):
        self.told.append(f'{time.monotonic() - self.begun:5.1f} s  {text}')

    def draw(self, last):
        width = shutil.get_terminal_size().columns
        lines = [f'A living switch  {self.written} changes written', '',
                 f'{"slice":<10} {"phase":<13} {"events":>7} {"/s":>5} {"lag ms":>7}  ', ]
        for name, chips in SLICES:
            status = self.status(name) or {'phase': 'gone', 'events': 0, 'lag': None}
            history = self.rates.setdefault(name, [])
            now = time.monotonic()
            rate = (status['events'] - history[-1][1]) / (now - history[-1][0]) if history and status['events'] >= history[-1][1] else 0
            history.append((now, status['events'], rate))
            most = max((r for _, _, r in history[-30:]), default=0) or 1
            marks = ''.join(BAR[min(7, int(7.99 * r / most))] for _, _, r in history[-30:])
            lag = '' if status['lag'] is None else status['lag']
            lines.append(f'{name:<10} {status["phase"]:<13} {status["events"]:>7} {rate:>5.0f} {lag:>7}  {marks}')
        lines += ['', 'last change: ' + json.dumps(last)] if last else ['', 'no change was taken']
        lines += [''] + self.told[-6:]
        if sys.stdout.isatty():
            print('\x1b[H\x1b[J' + '\n'.join(line[:width - 1] for line in lines), flush=True)

    # ---- the play

    def run(self):
        self.begun = time.monotonic()
        self.database.begin()
        self.tell('the database stands; a state is loaded')
        with open(self.path('state.json'), 'w') as out:
            json.dump({'interface/config/global': {'l3Mtu': 1500}}, out)
        self.l3sm('state', 'load', self.path('state.json'), '--database', self.url)
        for name, chips in SLICES:
            self.begin_agent(name, chips)
            self.wait(lambda: (self.status(name) or {}).get('phase') == 'running', name)
            self.tell(f'{name} runs: ' + ', '.join(chips))
        seconds, kills = self.options.seconds, {0.3: self.kill_database, 0.4: self.revive_database, 0.6: self.kill_agent, 0.7: self.revive_agent}
        begun, rounds = time.monotonic(), 0
        while (now := time.monotonic() - begun) < seconds:
            for part in [part for part in kills if now > part * seconds]:
                kills.pop(part)()
            self.draw(self.apply(self.options.rate // 2))
            rounds += 1
            time.sleep(max(0, begun + rounds * 0.5 - time.monotonic()))
        return self.judge()

    def held(self, name):
        held = json.loads(self.l3sm('ctl', '--socket', self.path(name + '.ctl'), '--json', 'state').stdout)
        return {path: held[path] for path in held if path in self.says and path != 'shared/agentGlobalState'}  # which names its slice

    def kill_database(self):
        self.database.kill()
        self.tell(self.database.killed)

    def revive_database(self):
        self.database.revive()
        self.tell(self.database.revived)

    def kill_agent(self):
        self.kill(SLICES[1][0])
        self.tell(SLICES[1][0] + ' is killed')

    def revive_agent(self):
        self.begin_agent(*SLICES[1])
        self.tell(SLICES[1][0] + ' is started again')

    def chips(self, name):
        return self.ctl(name, 'show').stdout

    def compare(self, name, chips):
        """With an agent that starts anew from what the database says. None: they are the same; else what differs."""
        twin = name + '-anew'
        self.begin_agent(twin, chips)
        self.wait(lambda: (self.status(twin) or {}).get('phase') == 'running', twin)
        held, files = [self.held(who) for who in (name, twin)], []
        for who in (name, twin):
            files.append(self.path(who + '.chips'))
            with open(files[-1], 'w') as out:
                out.write(self.chips(who))
        differ = self.l3sm('diff', '--stat', *files, check=False)
        self.ctl(twin, 'exit')
        self.processes.pop(twin).wait()
        if held[0] == held[1] and differ.returncode == 0:
            return None
        return differ.stdout.strip() + '\n' + ', '.join(path for path in held[0] if held[0][path] != held[1].get(path))

    def settle(self):
        """Until every agent has what was written."""
        self.l3sm('state', 'wait', '--database', self.url, *[word for name, _ in SLICES for word in ('--slice', name)])
        self.says = json.loads(self.l3sm('state', 'get', '--json', '--database', self.url).stdout)

    def judge(self):
        self.settle()
        wrong = 0
        for name, chips in SLICES:
            differs = self.compare(name, chips)
            self.tell(f'{name}: ' + ('DIFFERS from an agent that starts anew' if differs else 'state and chips are those of an agent that starts anew'))
            if differs:
                wrong += 1
                self.tell(differs.replace('\n', '\n         '))
        self.draw(None)
        if not sys.stdout.isatty():
            print('\n'.join(self.told))
        print(f'{self.written} changes, {len(SLICES)} agents: ' + (f'{wrong} differ' if wrong else 'all hold what the database says'))
        return 1 if wrong else 0

    def end(self):
        for process in self.processes.values():
            process.terminate()
        for process in self.processes.values():
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
        shutil.rmtree(self.folder, ignore_errors=True)
