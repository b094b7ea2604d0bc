// Rows and columns of tables (see design.js).

// Rows of the cells that stand in each column, with what spans several of them repeated.
function gridOf(table) {
    const grid = [...table.rows].map(() => []);
    [...table.rows].forEach((row, y) => {
        let x = 0;
        for (const cell of row.cells) {
            while (grid[y][x])
                ++x;
            for (let down = 0; down < cell.rowSpan && y + down < grid.length; ++down)
                for (let right = 0; right < cell.colSpan; ++right)
                    grid[y + down][x + right] = cell;
            x += cell.colSpan;
        }
    });
    return grid;
}

function caretCell() {
    return caretElement().closest('td,th');
}

function newCell(model) {
    const cell = model.cloneNode(false);
    for (const name of ['id', 'colspan', 'rowspan'])
        cell.removeAttribute(name);
    cell.append(document.createElement('br'));
    return cell;
}

function insertRow() {
    const cell = caretCell();
    const row = cell.parentElement;
    const grid = gridOf(row.closest('table'));
    const y = row.rowIndex + cell.rowSpan - 1;
    const last = Math.min(y, grid.length - 1);
    const added = row.cloneNode(false);
    added.removeAttribute('id');
    for (const above of new Set(grid[last])) {
        if (above && grid[last + 1]?.includes(above)) {
            above.rowSpan += 1;
        } else if (above) {
            const made = newCell(above);
            if (above.colSpan > 1)
                made.colSpan = above.colSpan;
            added.append(made);
        }
    }
    row.closest('table').rows[last].after(added);
}

function insertColumn() {
    const cell = caretCell();
    const table = cell.closest('table');
    const grid = gridOf(table);
    const x = grid[cell.parentElement.rowIndex].lastIndexOf(cell);
    const widened = new Set;
    grid.forEach((cells, y) => {
        const left = cells[x];
        if (left && left === cells[x + 1]) {
            if (!widened.has(left))
                left.colSpan += 1;
            widened.add(left);
            return;
        }
        const isFromAbove = left && left.parentElement !== table.rows[y];
        if (isFromAbove && widened.has(left))
            return;
        const made = newCell(left || cell);
        if (left && left.rowSpan > 1)
            made.rowSpan = left.rowSpan;
        if (left && !isFromAbove)
            left.after(made);
        else
            table.rows[y].append(made);
        widened.add(left);
    });
}
