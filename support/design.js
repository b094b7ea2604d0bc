// The editing script of the design view. It runs in a world of its own while the scripts of the
// page are off, tells the program what changes through lines on the console, and is asked through
// `brenix`. It puts nothing into the page that is not the author's. This file is the end of one
// function that begins with designHistory.js, designEdit.js, designTables.js and designMarks.js.

const tell = message => console.log(
    'brenix-design ' + JSON.stringify({page: location.host, ...message}));


// ---- Commands, by their numbers

const engine = (command, value) => ({
    run: given => {
        document.execCommand(command, false, value ? value(given) : undefined);
    },
    isOn: () => document.queryCommandState(command),
});
const whenSelected = {isPossible: () => !selection().isCollapsed};
const inTable = {isPossible: () => Boolean(caretCell())};
const asColour = text => /^#/.test(text) ? text : '#' + text;

const commands = new Map([
    [5000, engine('bold')],
    [5002, whenSelected],
    [5003, whenSelected],
    [5004, {run: deleteOne}],
    [5011, {value: blockStyle}],
    [5013, {value: fontName}],
    [5014, {value: () => document.queryCommandValue('fontSize')}],
    [5015, {value: foreColour}],
    [5018, engine('indent')],
    [5020, {run: insertColumn, ...inTable}],
    [5021, {run: insertRow, ...inTable}],
    [5023, engine('italic')],
    [5024, engine('justifyCenter')],
    [5025, engine('justifyLeft')],
    [5026, engine('justifyRight')],
    [5030, {run: () => toggleList('ol'), isOn: () => caretList()?.localName === 'ol'}],
    [5031, engine('outdent')],
    [5032, {}],
    [5033, {run: redo, isPossible: () => stepsDone < steps.length}],
    [5034, engine('removeFormat')],
    [5035, {run: () => document.execCommand('selectAll')}],
    [5043, {run: setBlockStyle}],
    [5044, engine('fontName', name => name)],
    [5045, engine('fontSize', size => size)],
    [5046, engine('foreColor', asColour)],
    [5048, engine('underline')],
    [5049, {run: undo, isPossible: () => stepsDone > 0}],
    [5051, {run: () => toggleList('ul'), isOn: () => caretList()?.localName === 'ul'}],
]);

function deleteOne() {
    document.execCommand(selection().isCollapsed ? 'forwardDelete' : 'delete');
}

function fontName() {
    const first = document.queryCommandValue('fontName').split(',')[0].trim();
    return first.replace(/^["']|["']$/g, '');
}

function foreColour() {
    const parts = document.queryCommandValue('foreColor').match(/\d+/g) || [];
    const digits = parts.slice(0, 3).map(part => Number(part).toString(16).padStart(2, '0'));
    return digits.length < 3 ? '' : '#' + digits.join('').toUpperCase();
}

let statesMade = 0;

function state() {
    const result = {
        number: ++statesMade, status: {}, values: {}, tag: caretElement().tagName,
        title: document.title, isDirty: stepsDone > 0,
    };
    for (const [number, command] of commands) {
        const isPossible = command.isPossible ? command.isPossible() : true;
        result.status[number] = !isPossible ? 1 : command.isOn?.() ? 7 : 3;
        if (command.value)
            result.values[number] = command.value();
    }
    return result;
}

function tellState(message = {}) {
    showMarksSoon();
    tell({...message, state: state()});
}

// One step of the history, whatever the command does to the page.
function change(run) {
    endStep('');
    ensureSelection();
    placeBefore = selectionPlace();
    ++commandDepth;
    try {
        run();
    } finally {
        --commandDepth;
        endStep('');
        placeBefore = null;
    }
    return state();
}

function exec(number, value) {
    const command = commands.get(number);
    if (!command?.run || (command.isPossible && !command.isPossible()))
        return state();
    return change(() => command.run(value));
}

// ---- Text for the program

// The parser takes the first line end of these away; a page that begins them with one needs two.
const dropsLineEnd = 'pre,listing,textarea';

function inert(node) {
    const copy = document.implementation.createHTMLDocument('').importNode(node, true);
    for (const element of copy.querySelectorAll(dropsLineEnd))
        if (element.firstChild?.nodeType === Node.TEXT_NODE
            && element.firstChild.data.startsWith('\n'))
            element.prepend('\n');
    return copy;
}

function page() {
    endStep('');
    const isDirty = stepsDone > 0;
    return {isDirty, html: isDirty ? inert(document.documentElement).outerHTML : ''};
}

function selected() {
    const range = selection().rangeCount ? selection().getRangeAt(0) : document.createRange();
    let content = range.cloneContents();
    for (let around = elementOf(range.commonAncestorContainer); around?.matches(inlineStyles);
         around = around.parentElement) {
        const wrapper = around.cloneNode(false);
        wrapper.append(content);
        content = wrapper;
    }
    const holder = document.implementation.createHTMLDocument('').createElement('div');
    holder.append(inert(content));
    return {html: holder.innerHTML, text: selection().toString()};
}

// ---- Start

addEventListener('beforeinput', event => {
    if (event.inputType === 'historyUndo' || event.inputType === 'historyRedo') {
        event.preventDefault();
        exec(event.inputType === 'historyUndo' ? 5049 : 5033);
    } else if (!commandDepth) {
        endStep('');
        placeBefore = selectionPlace();
    }
}, true);
addEventListener('input', event => {
    // undone word by word; the Enter key comes as text as well
    if (!commandDepth)
        endStep(event.inputType === 'insertText' && !event.data?.trim() ? '' : event.inputType);
}, true);
document.addEventListener('selectionchange', () => tellState());
let hovered = '';
addEventListener('mouseover', event => {
    const link = event.target.closest?.('a[href],area[href]');
    const address = typeof link?.href === 'string' ? link.href : '';
    if (address !== hovered)
        tell({hovered: address});
    hovered = address;
}, true);
for (const kind of ['click', 'auxclick', 'submit'])
    addEventListener(kind, event => {
        if (kind === 'submit' || event.target.closest?.('a,area,button,input,summary'))
            event.preventDefault();
    }, true);
addEventListener('resize', showMarksSoon);
addEventListener('load', showMarksSoon, true);

document.designMode = 'on';
document.execCommand('styleWithCSS', false, false);
document.execCommand('defaultParagraphSeparator', false, 'p');
show(false, false);
ensureSelection();
observer.observe(document, {subtree: true, childList: true, attributes: true,
                            attributeOldValue: true, characterData: true,
                            characterDataOldValue: true});
tell({ready: true, state: state()});

const answer = run => ({state: change(run)});
return {
    exec: (number, value) => ({state: exec(number, value)}),
    insertMarkup: markup => answer(() => insertMarkup(markup)),
    insertForeign: markup => answer(() => insertForeign(markup)),
    insertText: text => answer(() => insertText(text)),
    isDirty: () => (endStep(''), stepsDone > 0),
    page, selected, show,
    refresh: showMarks,
};
