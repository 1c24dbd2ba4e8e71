// The page: makes its objects, loads the game's files, and starts the program.

import {unpack} from './archive.js';
import {BestTimes} from './best_times.js';
import {Boxes} from './boxes.js';
import {download} from './download.js';
import {Effects} from './effects.js';
import {Focus} from './focus.js';
import {waitForFrame} from './frames.js';
import {FullScreen} from './full_screen.js';
import {Keys} from './keys.js';
import {Music} from './music.js';
import {Notice} from './notice.js';
import {Screen} from './screen.js';

const stage = document.getElementById('stage');
const canvas = document.getElementById('screen');
const notice = new Notice(document.getElementById('notice'));

function makeScreen() {
    try {
        return new Screen(canvas);
    } catch (error) {
        console.error(error);
        notice.say(
            'This browser has no WebGL 2, which Glorbix draws with. Try a newer browser, or ' +
            'switch on hardware acceleration in its settings.');
        return null;
    }
}

function followContext(screen, focus) {
    canvas.addEventListener('webglcontextlost', (event) => {
        event.preventDefault(); // or it would never come back
        notice.say(
            'The graphics of this browser have stopped. The game goes on when they are back.');
        focus.setObstacle('lost picture', true);
    });
    canvas.addEventListener('webglcontextrestored', () => {
        screen.restore();
        notice.hide();
        focus.setObstacle('lost picture', false);
    });
}

function followVisibility(page) {
    document.addEventListener('visibilitychange', () => {
        page.effects.setSilent(document.hidden);
        page.music.setSilent(document.hidden);
    });
}

// Writes the game's files into the folder where the program starts.
function writeFiles(FS, files) {
    FS.mkdir('/game');
    FS.chdir('/game');
    for (const {name, bytes} of files) {
        if (name.endsWith('/')) {
            FS.mkdir(name.slice(0, -1));
        } else {
            FS.writeFile(name, bytes);
        }
    }
}

// Keys and focus reach the program once it runs.
function connectInput(module, page, focus) {
    const program = {
        keyDown: (key, repeated) => module._programKeyDown(key, repeated ? 1 : 0),
        keyUp: (key) => module._programKeyUp(key),
    };
    const keys = new Keys({
        program,
        isForGame: (event) => !page.boxes.isOpen() && event.target !== page.fullScreenButton,
        onFirst: () => {
            page.effects.start();
            page.music.start();
        },
        onFullScreen: () => page.fullScreen.toggle(),
    });
    page.keys = keys;
    page.boxes.onOpen = () => keys.releaseAll();
    focus.onChange = (here) => {
        if (!here) keys.releaseAll();
        module._programFocus(here ? 1 : 0);
    };
    focus.onChange(focus.isHere());
}

function connectFullScreen(page) {
    const button = page.fullScreenButton;
    button.hidden = !page.fullScreen.isPossible();
    button.addEventListener('click', () => {
        page.fullScreen.toggle();
        canvas.focus();
    });
}

function end(exitCode) {
    page.bestTimes.keep(page.files);
    page.music.stop();
    notice.say(exitCode === 0 ? 'The game is over. Press a key to play again.'
                              : 'The game has ended with an error. Press a key to start it again.');
    window.addEventListener('keydown', () => location.reload());
    window.addEventListener('pointerdown', () => location.reload());
}

async function loadBundle() {
    const bundle = await (await fetch('bundle.json')).json();
    const archive = await download(
        bundle.archive.name,
        (bytes) => { notice.show('Loading Glorbix', bytes / bundle.archive.bytes); });
    return {bundle, files: await unpack(archive)};
}

const page = {end};

async function start() {
    const screen = makeScreen();
    if (screen === null) return;
    notice.show('Loading Glorbix', 0);
    const {default: createProgram} = await import('./glorbix.js');
    const {bundle, files} = await loadBundle();

    const focus = new Focus(() => {});
    const boxes = new Boxes(() => {});
    const report = async (sentence) => {
        focus.setObstacle('report', true);
        await boxes.show('Notice', sentence, false);
        focus.setObstacle('report', false);
    };
    Object.assign(page, {
        screen,
        focus,
        boxes,
        bestTimes: new BestTimes(report),
        music: new Music(bundle.music, report),
        fullScreen: new FullScreen(stage),
        fullScreenButton: document.getElementById('full-screen'),
        effects: new Effects(files.map((file) => file.name).filter((name) => name.endsWith('.wav')),
                             (name) => page.files.readFile(name)),
        waitForFrame: async () => {
            page.bestTimes.keep(page.files);
            await waitForFrame();
        },
    });
    followContext(screen, focus);
    followVisibility(page);
    connectFullScreen(page);
    page.music.load().catch((error) => console.error(error));

    await createProgram({
        page,
        preRun: [(module) => {
            page.files = module.FS;
            writeFiles(module.FS, files);
            page.bestTimes.restore(module.FS);
            module.addRunDependency('input');
            module.onRuntimeInitialized = () => connectInput(module, page, focus);
            module.removeRunDependency('input');
            notice.hide();
            canvas.focus();
        }],
        onAbort: () => notice.say('The game has stopped by a fault. Reload the page.'),
    });
}

window.glorbix = page; // for the browser's console, and for tests
start().catch((error) => {
    console.error(error);
    notice.say(`Glorbix could not be loaded: ${error.message}.`);
});
navigator.serviceWorker?.register('service_worker.js').catch((error) => console.warn(error));
