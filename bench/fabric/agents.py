"""The agents of a fabric: real `l3sm serve` processes of 4 FAPs each, and the state that they follow.

    agents = Agents(l3sm, folder, url, [(1, 'Linecard1'), (1, 'Linecard2')])       # cell and slice of each
    agents.begin()
    agents.wait(server)                      # until they run
    agents.wait(server, {1: place})          # until they have applied that
    agents.end()
"""
import json, os, subprocess, time

import processes

FAPS = 4
CONFIG = 'shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet%d'
PATHS_OF_AN_INTERFACE = 4


def state_of(interfaces):
    """With each interface at a port of its own, up and served."""
    names = ['Ethernet%d' % number for number in range(1, interfaces + 1)]
    state = {'interface/config/global': {'l3Mtu': 1500}, 'evpn/status': {'vxlanEnabled': False}}
    if names:
        state |= {
            'interface/status/eth/phy/local': {'intfStatusLocal': {name: {} for name in names}},
            'shared/phySmStateData': {'allEthPhyIntfConfigDir': {'intfConfig': {name: {'mtu': 9000} for name in names}}},
            'shared/phySmStateSharedStatus': {'allEthPhyIntfStatusDir': {'intfStatus': {
                name: {'burnedInAddr': '02:00:00:%02x:%02x:%02x' % (at >> 16, at >> 8 & 255, at & 255)} for at, name in enumerate(names)}}},
            'shared/portStateInfo': {'portState': {str(at): {'intfId': name, 'active': True} for at, name in enumerate(names)}}}
    return state


def load(l3sm, folder, url, cell, interfaces):
    path = os.path.join(folder, 'state.json')
    with open(path, 'w') as out:
        json.dump(state_of(interfaces), out)
    done = subprocess.run([l3sm, 'state', 'load', path, '--database', url, '--cell', str(cell)], capture_output=True, text=True)
    if done.returncode:
        raise SystemExit('l3sm state load: ' + done.stderr)


class Agents:
    def __init__(self, l3sm, folder, url, who):
        self.l3sm, self.folder, self.url, self.who, self.processes = l3sm, folder, url, who, {}

    def begin(self):
        for cell, slice in self.who:
            faps = [{'fapId': fap, 'revision': {'chipType': 'BCM88690_B0', 'sdkVersion': 7, 'major': 5}} for fap in range(FAPS)]
            with open(self.path(slice, 'json'), 'w') as out:
                json.dump({'switch': {'slice': {'name': slice}, 'faps': faps}, 'toggles': {'Dace.json': {'ArmOrderedSwTable': False}}}, out)
            self.processes[cell, slice] = processes.begin(
                self.path(slice, 'log'), self.l3sm, 'serve', self.path(slice, 'json'), '--database', self.url, '--cell', str(cell),
                '--socket', self.path(slice, 'ctl'), '--audit', '0')

    def end(self):
        for process in self.processes.values():
            process.terminate()
        for process in self.processes.values():
            try:
                process.wait(30)
            except subprocess.TimeoutExpired:
                process.kill()
        self.processes = {}

    def path(self, slice, kind):
        return os.path.join(self.folder, slice + '.' + kind)

    def ctl(self, *words):
        for _, slice in self.processes:
            subprocess.run([self.l3sm, 'ctl', '--socket', self.path(slice, 'ctl'), *words], check=True, capture_output=True)

    def processor_time(self):
        return sum(processes.processor_time(each) for each in self.processes.values())

    def wait(self, server, places={}, seconds=600):
        """Until each runs and has applied what was written in its cell up to a place."""
        cells = sorted(set(cell for cell, _ in self.who))
        end = time.monotonic() + seconds
        while True:
            there = server.agents(cells)
            late = [who for who in self.who
                    if who not in there or there[who].phase != 'running' or there[who].applied < places.get(who[0], 0)]
            if not late:
                return
            for who in late:
                if self.processes[who].poll() is not None:
                    raise SystemExit(f'{who[1]} has ended: ' + open(self.path(who[1], 'log')).read()[-400:])
            if time.monotonic() > end:
                raise SystemExit(f'{late[0][1]} is late: {there.get(late[0])}')
            time.sleep(0.02)
