// The selection, and the history of the page under edit (see design.js).

const selection = () => getSelection();

function elementOf(node) {
    return node && (node.nodeType === Node.ELEMENT_NODE ? node : node.parentElement);
}

function caretElement() {
    return elementOf(selection().focusNode) || document.body || document.documentElement;
}

function selectionPlace() {
    const {anchorNode, anchorOffset, focusNode, focusOffset} = selection();
    return {anchorNode, anchorOffset, focusNode, focusOffset};
}

function isSamePlace(a, b) {
    return a.anchorNode === b.anchorNode && a.anchorOffset === b.anchorOffset
        && a.focusNode === b.focusNode && a.focusOffset === b.focusOffset;
}

function select(place) {
    const {anchorNode, anchorOffset, focusNode, focusOffset} = place;
    if (anchorNode?.isConnected && focusNode?.isConnected) {
        const within = (node, offset) => Math.min(offset, node.nodeType === Node.ELEMENT_NODE
            ? node.childNodes.length : node.data.length);
        selection().setBaseAndExtent(anchorNode, within(anchorNode, anchorOffset),
                                     focusNode, within(focusNode, focusOffset));
    }
}

// The start of the body will not do: where blanks or a comment stand there, keys are lost.
function ensureSelection() {
    if (selection().rangeCount || !document.body)
        return;
    selection().collapse(document.body, 0);
    selection().modify('move', 'backward', 'documentboundary');
}

// The engine's own undo takes back only what its own commands did, and some of those not exactly.
// Here every step is the list of changes that the page really underwent.

const steps = [];
let stepsDone = 0;
let changes = [];
let commandDepth = 0;
let placeBefore = null;
const mergedKinds = ['insertText', 'insertCompositionText', 'deleteContentBackward',
                     'deleteContentForward'];

const observer = new MutationObserver(records => {
    collect(records);
    if (!commandDepth)
        endStep('');
});

function collect(records) {
    for (const record of records)
        changes.push({record, value: record.oldValue, trees: new Map});
}

function endStep(kind) {
    collect(observer.takeRecords());
    if (!changes.length)
        return;
    keepAddressesRelative();
    collect(observer.takeRecords());
    const before = placeBefore || selectionPlace();
    const last = steps[stepsDone - 1];
    steps.length = stepsDone;
    if (last && last.kind === kind && mergedKinds.includes(kind)
        && isSamePlace(last.after, before)) {
        last.changes = last.changes.concat(changes);
        last.after = selectionPlace();
    } else {
        steps.push({kind, changes, before, after: selectionPlace()});
        ++stepsDone;
    }
    changes = [];
    placeBefore = null;
    tellState({edited: true});
}

// What happens inside a node before it comes into the page is no change that is heard of, so what
// is in it is noted when it goes.
function treeOf(node, tree = []) {
    tree.push([node, [...node.childNodes]]);
    node.childNodes.forEach(child => treeOf(child, tree));
    return tree;
}

function restoreTree(tree = []) {
    for (const [node, children] of tree)
        if (children.some((child, i) => child !== node.childNodes[i])
            || children.length !== node.childNodes.length)
            node.replaceChildren(...children);
}

function swap(change, isForward) {
    const {type, target, attributeNamespace, attributeName, addedNodes, removedNodes, nextSibling}
        = change.record;
    if (type === 'childList') {
        const [leaving, coming]
            = isForward ? [removedNodes, addedNodes] : [addedNodes, removedNodes];
        const place = nextSibling?.parentNode === target ? nextSibling : null;
        for (const node of leaving) {
            change.trees.set(node, treeOf(node));
            if (node.parentNode === target)
                target.removeChild(node);
        }
        for (const node of coming) {
            restoreTree(change.trees.get(node));
            target.insertBefore(node, place);
        }
    } else if (type === 'attributes') {
        const value = change.value;
        change.value = target.getAttributeNS(attributeNamespace, attributeName);
        if (value === null)
            target.removeAttributeNS(attributeNamespace, attributeName);
        else
            target.setAttributeNS(attributeNamespace, attributeName, value);
    } else {
        const value = change.value;
        change.value = target.data;
        target.data = value;
    }
}

function undo() {
    if (!stepsDone)
        return;
    const step = steps[--stepsDone];
    for (let i = step.changes.length; i-- > 0;)
        swap(step.changes[i], false);
    afterHistory(step.before);
}

function redo() {
    if (stepsDone === steps.length)
        return;
    const step = steps[stepsDone++];
    for (const change of step.changes)
        swap(change, true);
    afterHistory(step.after);
}

function afterHistory(place) {
    observer.takeRecords();
    select(place);
    tellState({edited: true});
}

// What is dragged or pasted by the engine comes with the full address of this view.
function keepAddressesRelative() {
    const folder = location.href.slice(0, location.href.lastIndexOf('/') + 1);
    const names = ['src', 'href', 'background', 'action', 'data', 'poster'];
    for (const {record} of changes) {
        for (const added of record.addedNodes) {
            if (added.nodeType !== Node.ELEMENT_NODE)
                continue;
            for (const element of [added, ...added.querySelectorAll('*')])
                for (const name of names)
                    if (element.getAttribute(name)?.startsWith(folder))
                        element.setAttribute(name, element.getAttribute(name).slice(folder.length));
        }
    }
}
